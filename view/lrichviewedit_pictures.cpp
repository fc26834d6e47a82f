#include "imageinsertion.h"
#include "itemdocument.h"
#include "lrichviewedit.h"
#include "table/fieldclipboard.h"

#include <QFileDialog>
#include <QMimeData>
#include <QPointer>

QMimeData *LRichViewEdit::createMimeDataFromSelection() const
{
    std::unique_ptr<QMimeData> picture = lctrlsex::pictureData(textCursor());
    if (picture != nullptr) {
        return picture.release();
    }
    QMimeData *copied = QTextEdit::createMimeDataFromSelection();
    lctrlsex::addFields(copied, textCursor());
    return copied;
}

QSize LRichViewEdit::roomForPictures() const
{
    return lctrlsex::roomForPictures(m_itemSize, m_document->documentMargin());
}

void LRichViewEdit::insertImage(const QImage &image)
{
    insertPictures({lctrlsex::pictureFromImage(image, roomForPictures())});
}

void LRichViewEdit::insertImageFile(const QString &path)
{
    insertPictures({lctrlsex::pictureFromFile(path, roomForPictures())});
}

void LRichViewEdit::chooseImage()
{
    if (isReadOnly()) {
        return;
    }
    // On the heap and guarded: the host may delete the view while the dialog is open.
    const QPointer<QFileDialog> dialog =
        new QFileDialog(this, lctrlsex::insertImageText(), QString(), lctrlsex::imageFileFilter());
    dialog->setFileMode(QFileDialog::ExistingFile);
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog != nullptr;
    const QStringList files = isAccepted ? dialog->selectedFiles() : QStringList();
    delete dialog;
    if (!files.isEmpty()) {
        insertImageFile(files.first());
    }
}

void LRichViewEdit::insertPictures(const QVector<lctrlsex::InsertedPicture> &pictures)
{
    if (isReadOnly()) {
        return;
    }
    QTextCursor cursor = textCursor();
    const QString problem = lctrlsex::insertPictures(&cursor, pictures);
    if (problem.isEmpty()) {
        setTextCursor(cursor);
        ensureCursorVisible();
    } else {
        emit insertionRefused(problem);
    }
}
