#pragma once

#include <QColor>

class QString;
class QWidget;

namespace lctrlsex {

/**
 * Lets the user choose a colour in a modal dialog called @p title that starts at @p current.
 * Colours chosen before stand among the custom colours, the latest first. Invalid when the user
 * cancels or the dialog is deleted with its parent while it runs.
 */
[[nodiscard]] QColor chooseColor(QWidget *parent, const QString &title, const QColor &current);

} // namespace lctrlsex
