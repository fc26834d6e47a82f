#include "tableoperations.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextTable>

namespace lctrlsex {

namespace {

/** One undo step for as long as it lives. */
class EditBlock
{
public:
    explicit EditBlock(const QTextTable &table)
        : m_cursor(table.firstCursorPosition())
    {
        m_cursor.beginEditBlock();
    }
    ~EditBlock() { m_cursor.endEditBlock(); }
    Q_DISABLE_COPY(EditBlock)

private:
    QTextCursor m_cursor;
};

int lineCount(const QTextTable &table, Axis axis)
{
    return axis == Axis::Rows ? table.rows() : table.columns();
}

void splitAll(QTextTable *table, const QVector<Span> &spans)
{
    for (const Span &span : spans) {
        table->splitCell(span.row, span.column, 1, 1);
    }
}

void mergeAll(QTextTable *table, const QVector<Span> &spans)
{
    for (const Span &span : spans) {
        if (!span.isEmpty() && !span.isSingle()) {
            table->mergeCells(span.row, span.column, span.rows, span.columns);
        }
    }
}

/** The merged cells that a change of @p count lines from @p at must not meet as they are. */
QVector<Span> spansInReach(const QTextTable &table, Axis axis, int at, int count)
{
    if (axis == Axis::Columns) {
        return mergedCells(table); // the text engine misplaces columns beside any cell of rows
    }
    const Span whole{0, 0, table.rows(), table.columns()};
    return mergedCells(table, whole.withLines(axis, at - 1, count + 2));
}

/** The smallest area that holds @p area and cuts no merged cell. */
Span grownOverMerged(const QTextTable &table, Span area)
{
    for (bool grew = true; grew;) {
        const Span before = area;
        area = grownOver(area, mergedCells(table, area));
        grew = area != before;
    }
    return area;
}

bool isEmpty(const QTextTableCell &cell)
{
    return cell.firstPosition() == cell.lastPosition();
}

/** Moves what @p from holds behind what @p to holds; whole paragraphs keep their look. */
void moveContents(const QTextTableCell &from, const QTextTableCell &to)
{
    if (isEmpty(from)) {
        return;
    }
    QTextCursor source = from.firstCursorPosition();
    source.setPosition(from.lastPosition(), QTextCursor::KeepAnchor);
    const QTextDocumentFragment contents = source.selection();
    QVector<QTextBlockFormat> formats;
    for (QTextBlock block = from.firstCursorPosition().block();
         block.isValid() && block.position() <= from.lastPosition(); block = block.next()) {
        formats.append(block.blockFormat());
    }
    source.removeSelectedText();
    QTextCursor target = to.lastCursorPosition();
    const int start = target.position();
    target.insertFragment(contents);
    target.setPosition(start);
    for (const QTextBlockFormat &format : qAsConst(formats)) {
        if (target.block().position() >= start) {
            target.setBlockFormat(format);
        }
        target.movePosition(QTextCursor::NextBlock);
    }
}

/** Moves what all cells of @p area hold into its first: rows as paragraphs, cells behind a blank.
 */
void gatherContents(const QTextTable &table, const Span &area)
{
    const QTextTableCell first = table.cellAt(area.row, area.column);
    for (int row = area.row; row < area.row + area.rows; ++row) {
        bool startsRow = true;
        for (int column = area.column; column < area.column + area.columns; ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (isEmpty(cell) || cell == first) {
                startsRow = startsRow && isEmpty(cell);
                continue;
            }
            if (!isEmpty(first)) {
                QTextCursor end = first.lastCursorPosition();
                startsRow ? end.insertBlock() : end.insertText(QStringLiteral(" "));
            }
            startsRow = false;
            moveContents(cell, first);
        }
    }
}

/** Moves what the first lines of merged cells hold to the first lines of what is left of them. */
void saveContents(QTextTable *table, const QVector<Span> &spans, Axis axis, int at, int count)
{
    const int end = at + count;
    for (const Span &span : spans) {
        const int first = span.first(axis);
        const bool losesFirst = at <= first && first < end;
        if (losesFirst && end < first + span.count(axis)) {
            const Span left = span.withLines(axis, end, 1);
            moveContents(table->cellAt(span.row, span.column),
                         table->cellAt(left.row, left.column));
        }
    }
}

/** One width for each column, or none at all: the text engine indexes the list unchecked. */
void completeWidths(QTextTable *table)
{
    QTextTableFormat format = table->format();
    QVector<QTextLength> widths = format.columnWidthConstraints();
    if (widths.isEmpty() || widths.size() == table->columns()) {
        return;
    }
    widths.resize(table->columns());
    format.setColumnWidthConstraints(widths);
    table->setFormat(format);
}

} // namespace

Span spanOf(const QTextTableCell &cell)
{
    return cell.isValid() ? Span{cell.row(), cell.column(), cell.rowSpan(), cell.columnSpan()}
                          : Span();
}

QVector<Span> mergedCells(const QTextTable &table)
{
    return mergedCells(table, {0, 0, table.rows(), table.columns()});
}

// What a cell covers costs far more to ask than whether two slots have the same cell.
QVector<Span> mergedCells(const QTextTable &table, const Span &area)
{
    const int firstRow = qMax(0, area.row);
    const int firstColumn = qMax(0, area.column);
    const int endRow = qMin(table.rows(), area.row + area.rows);
    const int endColumn = qMin(table.columns(), area.column + area.columns);
    QVector<Span> spans;
    for (int row = firstRow; row < endRow; ++row) {
        for (int column = firstColumn; column < endColumn; ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            const auto covers = [&table, &cell](int otherRow, int otherColumn) {
                return otherRow >= 0 && otherRow < table.rows() && otherColumn >= 0 &&
                       otherColumn < table.columns() && table.cellAt(otherRow, otherColumn) == cell;
            };
            if (!covers(row, column + 1) && !covers(row + 1, column) &&
                (column > firstColumn || !covers(row, column - 1)) &&
                (row > firstRow || !covers(row - 1, column))) {
                continue;
            }
            const Span span = spanOf(cell);
            if (row == qMax(firstRow, span.row) && column == qMax(firstColumn, span.column)) {
                spans.append(span);
            }
        }
    }
    return spans;
}

void insertLines(QTextTable *table, Axis axis, int at, int count)
{
    if (table == nullptr || count < 1) {
        return;
    }
    at = qBound(0, at, lineCount(*table, axis));
    const EditBlock block(*table);
    QVector<Span> spans = spansInReach(*table, axis, at, 0);
    splitAll(table, spans);
    if (axis == Axis::Rows) {
        table->insertRows(at, count);
    } else {
        completeWidths(table);
        table->insertColumns(at, count);
        fitTableWidth(table);
    }
    for (Span &span : spans) {
        span = afterInsertion(span, axis, at, count);
    }
    mergeAll(table, spans);
}

void removeLines(QTextTable *table, Axis axis, int at, int count)
{
    if (table == nullptr || at < 0 || at >= lineCount(*table, axis) || count < 1) {
        return;
    }
    count = qMin(count, lineCount(*table, axis) - at);
    const bool removesAll = count == lineCount(*table, axis);
    if (removesAll) {
        axis == Axis::Rows ? table->removeRows(0, count) : table->removeColumns(0, count);
        return;
    }
    const EditBlock block(*table);
    QVector<Span> spans = spansInReach(*table, axis, at, count);
    splitAll(table, spans);
    saveContents(table, spans, axis, at, count);
    if (axis == Axis::Rows) {
        table->removeRows(at, count);
    } else {
        completeWidths(table);
        table->removeColumns(at, count);
        fitTableWidth(table);
    }
    for (Span &span : spans) {
        span = afterRemoval(span, axis, at, count);
    }
    mergeAll(table, spans);
}

bool mergeCells(QTextTable *table, const Span &area)
{
    if (table == nullptr || area.isEmpty() || area.row < 0 || area.column < 0 ||
        area.row + area.rows > table->rows() || area.column + area.columns > table->columns()) {
        return false;
    }
    const Span grown = grownOverMerged(*table, area);
    const QVector<Span> inside = mergedCells(*table, grown);
    if (grown.isSingle() || inside.contains(grown)) {
        return false;
    }
    const EditBlock block(*table);
    splitAll(table, inside);
    // Only empty cells are left to the text engine, which cannot undo a merge that moved text.
    gatherContents(*table, grown);
    mergeAll(table, {grown});
    return true;
}

bool splitCell(QTextTable *table, int row, int column, Axis axis, int pieces)
{
    const QTextTableCell cell = table != nullptr ? table->cellAt(row, column) : QTextTableCell();
    if (!cell.isValid() || pieces < 2) {
        return false;
    }
    const Span whole = spanOf(cell);
    const QVector<Span> parts = equalParts(whole, axis, pieces);
    if (parts.isEmpty()) {
        return false;
    }
    const EditBlock block(*table);
    splitAll(table, {whole});
    mergeAll(table, parts);
    return true;
}

bool unmergeCells(QTextTable *table, const Span &area)
{
    const QVector<Span> merged = table != nullptr ? mergedCells(*table, area) : QVector<Span>();
    if (merged.isEmpty()) {
        return false;
    }
    const EditBlock block(*table);
    splitAll(table, merged);
    return true;
}

void fitTableWidth(QTextTable *table)
{
    QTextTableFormat format = table->format();
    const QVector<QTextLength> widths = format.columnWidthConstraints();
    qreal sum = 0;
    for (const QTextLength &width : widths) {
        if (width.type() != QTextLength::FixedLength) {
            return;
        }
        sum += width.rawValue();
    }
    const QTextLength fitted(QTextLength::FixedLength, sum);
    if (!widths.isEmpty() && format.width() != fitted) {
        format.setWidth(fitted);
        table->setFormat(format);
    }
}

} // namespace lctrlsex
