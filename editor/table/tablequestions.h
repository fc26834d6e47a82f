#pragma once

#include "ltableproperties.h"

#include <QSize>

class QWidget;

namespace lctrlsex {

// Modal questions about tables. The host may delete @p parent while one is open: whoever asks must
// look afterwards whether it is there itself.

/**
 * Lets the user edit @p record in a dialog with @p title, from the form's own defaults when @p
 * isNew; true when that was accepted. @p itemSize in pixels is that of the item that holds the
 * table.
 */
bool askTableProperties(QWidget *parent, const QString &title, const QSize &itemSize,
                        LUM_EditInterface::LTableProperties *record, bool isNew);

/** Asks for the number of rows, or else columns, to split a cell into: 2 to 100; 0 for none. */
[[nodiscard]] int askSplitCount(QWidget *parent, bool vertical);

/** Says @p text in a box titled "Insert Table". */
void warnOfTable(QWidget *parent, const QString &text);

} // namespace lctrlsex
