#pragma once

#include "spangrid.h"

class QTextTable;
class QTextTableCell;

namespace lctrlsex {

/*
 * Changes of a table that may hold merged cells.
 *
 * The text engine's own commands for rows and columns leave broken cells behind when a merged cell
 * is near, and crash later. These split the merged cells in reach, change the plain grid, and merge
 * again. Each is one undo step; one that changes nothing leaves no trace. Lines out of range are
 * clamped. A null table is ignored.
 */

/** The slots that @p cell covers; a single slot at 0, 0 for an invalid cell. */
[[nodiscard]] Span spanOf(const QTextTableCell &cell);

/** Every merged cell, row by row. */
[[nodiscard]] QVector<Span> mergedCells(const QTextTable &table);
/** Those that have a slot in @p area, which may reach beyond the table. */
[[nodiscard]] QVector<Span> mergedCells(const QTextTable &table, const Span &area);

/**
 * Inserts @p count empty rows or columns before line @p at; the number of lines appends. A merged
 * cell that the place lies in grows. A column gets the fixed width of its left neighbour.
 */
void insertLines(QTextTable *table, Axis axis, int at, int count);

/**
 * Removes @p count rows or columns from line @p at. What is left of a merged cell keeps its
 * contents. Without a line left, the table is gone, and @p table dangles.
 */
void removeLines(QTextTable *table, Axis axis, int at, int count);

/**
 * Merges the cells of @p area, grown until it cuts no merged cell. False when that would be a
 * single cell already.
 */
bool mergeCells(QTextTable *table, const Span &area);

/**
 * Splits the merged cell that covers the slot into @p pieces equal parts along @p axis, the first
 * of which keeps the contents. False, and nothing done, when its lines do not divide or the parts
 * would be the whole.
 */
bool splitCell(QTextTable *table, int row, int column, Axis axis, int pieces);

/**
 * Splits every merged cell that meets @p area back into its slots, the first of which keeps the
 * contents. False, and nothing done, when there is none.
 */
bool unmergeCells(QTextTable *table, const Span &area);

/** Gives the table the sum of its columns' widths, when all of these are fixed. */
void fitTableWidth(QTextTable *table);

} // namespace lctrlsex
