#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QTextCharFormat;
class QTextTable;

namespace lctrlsex {

/**
 * The rows of cells that a spreadsheet puts on the clipboard: separated by line ends and tabs, a
 * cell that holds either in quotes. None when @p text has no tab and so is no more than text.
 */
[[nodiscard]] QVector<QStringList> cellsOf(const QString &text);

/** What a table may do to take more cells than it has. */
struct TableGrowth
{
    bool rows = false;
    bool columns = false;
};

/**
 * Puts @p cells into @p table from the slot at @p row and @p column on, in place of what is there,
 * in @p format; adds lines where @p growth allows it and a table can be so large. One undo step.
 * Of a merged cell only the first slot takes a text. Returns how many cells, other than empty ones,
 * found no place.
 */
int fillCells(QTextTable *table, int row, int column, const QVector<QStringList> &cells,
              TableGrowth growth, const QTextCharFormat &format);

/** A text for the cell whose first slot is at row and column. */
struct CellText
{
    int row = 0;
    int column = 0;
    QString text;
};

/**
 * Puts each of @p texts, in @p format, in place of all that its cell holds. Left alone are a cell
 * that reads so already in such letters and a slot that is not the first of its cell. One undo
 * step, none when nothing changes.
 */
void writeCells(QTextTable *table, const QVector<CellText> &texts, const QTextCharFormat &format);

/**
 * The slot of the cell behind that at @p row and @p column, or in front of it, row by row; -1, -1
 * when there is none.
 */
[[nodiscard]] QPair<int, int> neighbourCell(const QTextTable &table, int row, int column,
                                            bool forward);

} // namespace lctrlsex
