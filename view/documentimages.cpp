#include "documentimages.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextObjectInterface>

namespace lctrlsex {

namespace {

/** How far below the top of @p line an image begins, as Qt draws it. */
qreal topInLine(const QTextLine &line, const QTextCharFormat &format, qreal height)
{
    switch (format.verticalAlignment()) {
    case QTextCharFormat::AlignTop:
        return 0;
    case QTextCharFormat::AlignBottom:
        return line.height() - height;
    case QTextCharFormat::AlignMiddle:
        return (line.height() - height) / 2;
    default:
        return line.ascent() - height;
    }
}

} // namespace

QTextCharFormat formatOfCharacter(const QTextDocument &document, int position)
{
    const QTextBlock block = document.findBlock(position);
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (it.fragment().contains(position)) {
            return it.fragment().charFormat();
        }
    }
    return QTextCharFormat();
}

bool isPictureAt(const QTextDocument &document, int position)
{
    if (position < 0 || document.characterAt(position) != QChar::ObjectReplacementCharacter) {
        return false;
    }
    const QTextCharFormat format = formatOfCharacter(document, position);
    const auto *frame = qobject_cast<QTextFrame *>(document.objectForFormat(format));
    const bool isInLine =
        frame == nullptr || frame->frameFormat().position() == QTextFrameFormat::InFlow;
    return format.isImageFormat() && isInLine &&
           !format.toImageFormat().name().startsWith(QLatin1String("data://bindkey/"),
                                                     Qt::CaseInsensitive);
}

int pictureAt(const QTextCursor &cursor, int preferred)
{
    const QTextDocument &document = *cursor.document();
    const int start = cursor.selectionStart();
    if (cursor.hasSelection()) {
        return cursor.selectionEnd() == start + 1 && isPictureAt(document, start) ? start : -1;
    }
    const int other = preferred == start ? start - 1 : start;
    const int first = preferred == start ? start : start - 1;
    return isPictureAt(document, first) ? first : isPictureAt(document, other) ? other : -1;
}

int pictureAt(const QTextDocument &document, const QPointF &point)
{
    const int hit = document.documentLayout()->hitTest(point, Qt::FuzzyHit);
    for (const int position : {hit - 1, hit}) {
        if (isPictureAt(document, position) && pictureRect(document, position).contains(point)) {
            return position;
        }
    }
    return -1;
}

QRectF pictureRect(const QTextDocument &document, int position)
{
    QAbstractTextDocumentLayout *layout = document.documentLayout();
    const QTextBlock block = document.findBlock(position);
    const QPointF origin = layout->blockBoundingRect(block).topLeft(); // lays out so far
    const int place = position - block.position();
    const QTextLine line = block.layout()->lineForTextPosition(place);
    QTextObjectInterface *handler = layout->handlerForObject(QTextFormat::ImageObject);
    if (!line.isValid() || handler == nullptr) {
        return QRectF();
    }
    const QTextCharFormat format = formatOfCharacter(document, position);
    const QSizeF size = handler->intrinsicSize(layout->document(), position, format);
    const qreal left = qMin(line.cursorToX(place), line.cursorToX(place + 1));
    const qreal top = line.y() + topInLine(line, format, size.height());
    return QRectF(origin + QPointF(left, top), size);
}

void resizePicture(QTextCursor cursor, int position, const QSize &size)
{
    QTextImageFormat format = formatOfCharacter(*cursor.document(), position).toImageFormat();
    format.setWidth(size.width());
    format.setHeight(size.height());
    cursor.beginEditBlock(); // a merge can join no other step
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    cursor.setCharFormat(format);
    cursor.endEditBlock();
}

} // namespace lctrlsex
