#include "tablecommands.h"

#include "placeholderplan.h"
#include "richtable.h"
#include "table/tablecells.h"
#include "table/tableoperations.h"

#include <QTextCursor>
#include <QTextTable>

namespace lctrlsex {

namespace {

constexpr int FixedForm = 0;
constexpr int DynamicRows = 1;
constexpr int DynamicColumns = 2;

/** The selected range of cells; empty without one. */
Span selectedCells(const QTextCursor &cursor)
{
    Span cells;
    cursor.selectedTableCells(&cells.row, &cells.rows, &cells.column, &cells.columns);
    return cells.row < 0 ? Span{0, 0, 0, 0} : cells;
}

void placeCursor(QTextEdit *view, const QTextTable &table, int row, int column)
{
    const QTextTableCell cell =
        table.cellAt(qMin(row, table.rows() - 1), qMin(column, table.columns() - 1));
    view->setTextCursor(cell.firstCursorPosition());
}

void removeCurrent(QTextEdit *view, QTextTable *table, Axis axis)
{
    const QTextCursor cursor = view->textCursor();
    const Span cell = spanOf(table->cellAt(cursor));
    const Span range = selectedCells(cursor);
    const int first = range.isEmpty() ? cell.first(axis) : range.first(axis);
    const int count = range.isEmpty() ? 1 : range.count(axis);
    const QPointer<QTextTable> guard(table);
    removeLines(table, axis, first, count);
    if (guard != nullptr) {
        placeCursor(view, *table, cell.row, cell.column);
    }
}

void mergeSelected(QTextEdit *view, QTextTable *table)
{
    const Span range = selectedCells(view->textCursor());
    if (mergeCells(table, range)) {
        placeCursor(view, *table, range.row, range.column);
    }
}

void align(const QTextTable &table, const QTextCursor &cursor,
           QTextCharFormat::VerticalAlignment alignment)
{
    QTextTableCell cell = table.cellAt(cursor);
    QTextCharFormat format = cell.format();
    if (format.verticalAlignment() != alignment) {
        format.setVerticalAlignment(alignment);
        cell.setFormat(format);
    }
}

} // namespace

TableCommands::TableCommands(QTextEdit *view)
    : m_view(view)
{}

bool TableCommands::hasTable() const
{
    return m_view != nullptr && firstTable(m_view->document()) != nullptr;
}

QTextTable *TableCommands::current() const
{
    return m_view != nullptr ? m_view->textCursor().currentTable() : nullptr;
}

bool TableCommands::insert(const LUM_EditInterface::LTableProperties &record,
                           Qt::Alignment alignment)
{
    if (m_view == nullptr || hasTable()) {
        return false;
    }
    QTextCursor cursor = m_view->textCursor();
    if (insertTable(cursor, record, alignment, m_view->currentCharFormat()) == nullptr) {
        return false;
    }
    m_view->setTextCursor(cursor);
    return true;
}

void TableCommands::reformat(const LUM_EditInterface::LTableProperties &record)
{
    reformatTable(current(), record);
}

LUM_EditInterface::LTableProperties TableCommands::record() const
{
    return readTable(current());
}

TableCommands::MenuState TableCommands::menuState(int type) const
{
    MenuState state;
    const QTextTable *table = current();
    if (table == nullptr) {
        return state;
    }
    const QTextCursor cursor = m_view->textCursor();
    state.rows = type == FixedForm || type == DynamicColumns;
    state.columns = type == FixedForm || type == DynamicRows;
    state.merge = cursor.hasSelection() && table->cellAt(cursor.selectionStart()).isValid() &&
                  table->cellAt(cursor.selectionEnd()).isValid();
    state.range = !selectedCells(cursor).isEmpty();
    state.split = type == FixedForm;
    state.properties = true;
    return state;
}

void TableCommands::operate(int code, int type)
{
    QTextTable *table = current();
    if (table == nullptr) {
        return;
    }
    const QTextCursor cursor = m_view->textCursor();
    const Span cell = spanOf(table->cellAt(cursor));
    switch (code) {
    case InsertRowAbove:
        return insertLines(table, Axis::Rows, cell.row, 1);
    case InsertRowBelow:
        return insertLines(table, Axis::Rows, cell.row + cell.rows, 1);
    case DeleteRow:
        return removeCurrent(m_view, table, Axis::Rows);
    case InsertColumnLeft:
        return insertLines(table, Axis::Columns, cell.column, 1);
    case InsertColumnRight:
        return insertLines(table, Axis::Columns, cell.column + cell.columns, 1);
    case DeleteColumn:
        return removeCurrent(m_view, table, Axis::Columns);
    case Merge:
        if (type == FixedForm) {
            mergeSelected(m_view, table);
        }
        return;
    case Unmerge:
        unmergeCells(table, selectedCells(cursor));
        return;
    case AlignTop:
        return align(*table, cursor, QTextCharFormat::AlignTop);
    case AlignBottom:
        return align(*table, cursor, QTextCharFormat::AlignBottom);
    case AlignMiddle:
        return align(*table, cursor, QTextCharFormat::AlignMiddle);
    default:
        return;
    }
}

bool TableCommands::moveByTab(bool forward, int type)
{
    QTextTable *table = current();
    if (table == nullptr) {
        return false;
    }
    const QTextTableCell cell = table->cellAt(m_view->textCursor());
    QPair<int, int> next = neighbourCell(*table, cell.row(), cell.column(), forward);
    if (next.first < 0 && forward && menuState(type).rows) {
        next = {table->rows(), 0};
        insertLines(table, Axis::Rows, table->rows(), 1);
    }
    if (next.first >= 0) {
        placeCursor(m_view, *table, next.first, next.second);
    }
    return true;
}

int TableCommands::fill(const QVector<QStringList> &cells, int type, const QTextCharFormat &format)
{
    QTextTable *table = current();
    if (table == nullptr) {
        return -1;
    }
    const Span range = selectedCells(m_view->textCursor());
    const QTextTableCell cell = table->cellAt(m_view->textCursor());
    const MenuState state = menuState(type);
    return fillCells(table, range.isEmpty() ? cell.row() : range.row,
                     range.isEmpty() ? cell.column() : range.column, cells,
                     {state.rows, state.columns}, format);
}

bool TableCommands::splitCell(bool vertical, int pieces)
{
    QTextTable *table = current();
    if (table == nullptr) {
        return false;
    }
    const Span cell = spanOf(table->cellAt(m_view->textCursor()));
    const Axis axis = vertical ? Axis::Rows : Axis::Columns;
    return lctrlsex::splitCell(table, cell.row, cell.column, axis, pieces);
}

void TableCommands::writePlaceholders(const TableBound &bound, const QTextCharFormat &format)
{
    QTextTable *table = m_view != nullptr ? firstTable(m_view->document()) : nullptr;
    if (table != nullptr) {
        writeCells(table, placeholderPlan(bound, table->rows(), table->columns()), format);
    }
}

} // namespace lctrlsex
