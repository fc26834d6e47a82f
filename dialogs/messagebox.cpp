#include "messagebox.h"

#include <QPointer>

namespace lctrlsex {

static QMessageBox::StandardButton run(QMessageBox *shown)
{
    // On the heap and guarded: it goes with its parent.
    const QPointer<QMessageBox> box = shown;
    box->setTextFormat(Qt::PlainText);
    const int answer = box->exec();
    if (!box) {
        return QMessageBox::NoButton;
    }
    delete box;
    return QMessageBox::StandardButton(answer);
}

QMessageBox::StandardButton showMessage(QWidget *parent, QMessageBox::Icon icon,
                                        const QString &title, const QString &text,
                                        QMessageBox::StandardButtons buttons)
{
    return run(new QMessageBox(icon, title, text, buttons, parent));
}

bool confirm(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButton preset)
{
    auto *box = new QMessageBox(QMessageBox::Question, title, text,
                                QMessageBox::Yes | QMessageBox::No, parent);
    box->setDefaultButton(preset);
    return run(box) == QMessageBox::Yes;
}

} // namespace lctrlsex
