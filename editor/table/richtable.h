#pragma once

#include "ltableproperties.h"

#include <Qt>

class QTextCharFormat;
class QTextCursor;
class QTextDocument;
class QTextTable;

namespace lctrlsex {

/** The first table of @p document that is not inside another; null when there is none. */
[[nodiscard]] QTextTable *firstTable(const QTextDocument *document);

/** Cells of a table that an author makes; laying out as many takes about half a second. */
constexpr int MostTableCells = 20000;

/**
 * Whether a table can be made from @p record: at least one row and one column, at most
 * MostTableCells cells, border and padding from 0 to 999 pixels, and columns that together are no
 * wider than 16 384 pixels.
 */
[[nodiscard]] bool isUsable(const LUM_EditInterface::LTableProperties &record);

/**
 * Inserts a table as @p record says at @p cursor, which then stands in the first cell: columns of
 * one fixed width in pixels (0 leaves it to the layout), solid borders drawn once, a first row
 * marked as header. Text typed into a cell gets the letters of @p typed. One undo step; null and
 * nothing done when the record is not usable.
 */
QTextTable *insertTable(QTextCursor &cursor, const LUM_EditInterface::LTableProperties &record,
                        Qt::Alignment alignment, const QTextCharFormat &typed);

/**
 * Gives @p table the look and the number of rows and columns of @p record, one undo step. Lines
 * are added and removed at the end. Header and alignment stay, and so does whatever the record says
 * as readTable() does: columns of different widths, no ground at all. Nothing is done with a null
 * table or a record that is not usable, and no undo step is made when all is so already.
 */
void reformatTable(QTextTable *table, const LUM_EditInterface::LTableProperties &record);

/**
 * What @p table tells of its record: counts, colours, border, padding, and as the width of a column
 * the table's width divided by their number. The rest has the record's defaults, as has all for a
 * null table.
 */
[[nodiscard]] LUM_EditInterface::LTableProperties readTable(const QTextTable *table);

} // namespace lctrlsex
