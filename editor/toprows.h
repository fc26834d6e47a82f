#pragma once

class QTextBlock;
class QTextCursor;
class QTextTable;

namespace lctrlsex {

/**
 * The first row at which @p table can be cut so that at least @p rows are above it and no merged
 * cell is cut: the number of rows above, at most all of them.
 */
[[nodiscard]] int rowsWithoutCut(const QTextTable &table, int rows);

/**
 * Inserts the first @p rows of @p table at @p to, in another document, with their contents and
 * looks; a number as rowsWithoutCut() gives. False, with some of it inserted, for content that
 * cannot be copied by the cell: lists and frames.
 */
[[nodiscard]] bool copyTopRows(const QTextTable &table, int rows, QTextCursor *to);

/**
 * Whether the columns of @p copy, which has the first rows of @p table, came out as wide as those
 * of @p table itself: what stands further down may have made them wider. False when that cannot be
 * told because @p table is not laid out.
 */
[[nodiscard]] bool hasSameColumns(const QTextTable &table, const QTextTable &copy);

/**
 * Writes the text of @p block with its formats and its own into the block of @p to, which is
 * empty, sizes in pixels. False when there is a list or an object that stays behind.
 */
[[nodiscard]] bool copyBlock(const QTextBlock &block, QTextCursor *to);

} // namespace lctrlsex
