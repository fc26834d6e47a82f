#include "colorchoice.h"

#include <QColorDialog>
#include <QPointer>

namespace lctrlsex {

namespace {

/** Puts @p color first among the custom colours, from where the dialog keeps it for next time. */
void remember(const QColor &color)
{
    int place = 0;
    while (place < QColorDialog::customCount() - 1 && QColorDialog::customColor(place) != color) {
        ++place;
    }
    for (; place > 0; --place) {
        QColorDialog::setCustomColor(place, QColorDialog::customColor(place - 1));
    }
    QColorDialog::setCustomColor(0, color);
}

} // namespace

QColor chooseColor(QWidget *parent, const QString &title, const QColor &current)
{
    // On the heap and guarded: the host may delete the parent while the dialog runs.
    QPointer<QColorDialog> dialog = new QColorDialog(current, parent);
    dialog->setObjectName(QStringLiteral("ColorDialog"));
    dialog->setWindowTitle(title);
    QColor chosen;
    if (dialog->exec() == QDialog::Accepted && dialog != nullptr) {
        chosen = dialog->selectedColor();
        remember(chosen);
    }
    delete dialog;
    return chosen;
}

} // namespace lctrlsex
