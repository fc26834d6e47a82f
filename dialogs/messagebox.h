#pragma once

#include <QMessageBox>

namespace lctrlsex {

/**
 * Shows a modal message box over @p parent and waits for its answer: NoButton when @p parent, and
 * the box with it, went meanwhile. Whoever calls it may be gone then, too.
 */
QMessageBox::StandardButton showMessage(QWidget *parent, QMessageBox::Icon icon,
                                        const QString &title, const QString &text,
                                        QMessageBox::StandardButtons buttons = QMessageBox::Ok);

/** Asks a question with Yes and No, @p preset when Enter is pressed; true for Yes. */
[[nodiscard]] bool confirm(QWidget *parent, const QString &title, const QString &text,
                           QMessageBox::StandardButton preset = QMessageBox::No);

} // namespace lctrlsex
