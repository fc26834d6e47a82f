#include "toprows.h"

#include "documentsetup.h"
#include "table/tableground.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>

namespace lctrlsex {

namespace {

bool beginsAt(const QTextTableCell &cell, int row, int column)
{
    return cell.row() == row && cell.column() == column;
}

bool copyCell(const QTextTableCell &from, const QTextTableCell &to)
{
    QTextCursor cursor = to.firstCursorPosition();
    bool isFirst = true;
    for (auto it = from.begin(); !it.atEnd(); ++it) {
        if (it.currentFrame() != nullptr) {
            return false;
        }
        if (!isFirst) {
            cursor.insertBlock();
        }
        isFirst = false;
        if (!copyBlock(it.currentBlock(), &cursor)) {
            return false;
        }
    }
    return true;
}

/** Width that the first line of a cell may take; below 0 before it is laid out. */
qreal lineWidth(const QTextTableCell &cell)
{
    const QTextLayout *layout = cell.firstCursorPosition().block().layout();
    return layout != nullptr && layout->lineCount() > 0 ? layout->lineAt(0).width() : -1;
}

/** In the top rows, a cell that has @p column to itself and text of its own; else an invalid one.
 */
QTextTableCell cellOfColumn(const QTextTable &table, int rows, int column)
{
    for (int row = 0; row < rows; ++row) {
        const QTextTableCell cell = table.cellAt(row, column);
        if (cell.columnSpan() == 1 && beginsAt(cell, row, column)) {
            return cell;
        }
    }
    return {};
}

} // namespace

int rowsWithoutCut(const QTextTable &table, int rows)
{
    int cut = qMin(rows, table.rows());
    for (int row = 0; row < cut; ++row) {
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (cell.row() == row) {
                cut = qMax(cut, row + cell.rowSpan());
            }
        }
    }
    return qMin(cut, table.rows());
}

bool copyTopRows(const QTextTable &table, int rows, QTextCursor *to)
{
    QTextTable *copy = to->insertTable(rows, table.columns(), table.format());
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (!beginsAt(cell, row, column)) {
                continue;
            }
            if (cell.rowSpan() > 1 || cell.columnSpan() > 1) {
                copy->mergeCells(row, column, cell.rowSpan(), cell.columnSpan());
            }
            copy->cellAt(row, column).setFormat(cell.format());
            if (!copyCell(cell, copy->cellAt(row, column))) {
                return false;
            }
        }
    }
    return true;
}

bool hasSameColumns(const QTextTable &table, const QTextTable &copy)
{
    const qreal scale = lengthScale(*table.document()) / lengthScale(*copy.document());
    // The layout rounds scaled widths to pixels. A view has less room for words than a page, so
    // that one that widens a column of the page by less than this widens it by more in the view.
    const qreal tolerance = scale < 1 ? 0.5 : 1.0 / 32;
    for (int column = 0; column < copy.columns(); ++column) {
        const QTextTableCell cell = cellOfColumn(copy, copy.rows(), column);
        if (!cell.isValid()) {
            return false;
        }
        const qreal width = lineWidth(table.cellAt(cell.row(), column));
        if (width < 0 || qAbs(width - lineWidth(cell) * scale) > tolerance) {
            return false;
        }
    }
    return true;
}

bool copyBlock(const QTextBlock &block, QTextCursor *to)
{
    if (block.blockFormat().objectIndex() != -1) {
        return false;
    }
    QTextCharFormat empty = block.charFormat();
    pointsToPixels(&empty);
    to->setBlockFormat(block.blockFormat());
    to->setBlockCharFormat(empty);
    bool isWhole = true;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        QTextCharFormat format = it.fragment().charFormat();
        isWhole = isWhole && format.objectIndex() == -1;
        pointsToPixels(&format);
        to->insertText(it.fragment().text(), format);
    }
    return isWhole;
}

} // namespace lctrlsex
