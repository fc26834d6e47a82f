#include "htmlworkload.h"

#include "htmlcosts.h"

#include <algorithm>

namespace lctrlsex {

using namespace cost;

void HtmlWorkload::enterTable(const ElementRequest &request)
{
    endBlock();
    if (!m_tables.empty()) {
        // Outside of a cell, or where spans overlap, Qt loses its place and puts each further
        // table into the one before: as deep as there are tables.
        Table &outer = m_tables.back();
        outer.holdsTables = true;
        if (!outer.inCell || outer.overlaps || request.style.rootFrame) {
            fail(HtmlExcess::TableOrder);
        }
    }
    const double border = std::max({request.border, request.style.border, m_sheet.border});
    const double frame = 2 * (border + request.padding) + request.spacing;
    Table table;
    table.rowExtra = frame;
    table.columnExtra = frame;
    m_tables.push_back(table);
    m_heights.push_back(top().upright + request.height + frame + blockMargins);
    m_floats += request.floats || request.style.floats ? 1 : 0;
    if (m_floats > mostFloats) {
        fail(HtmlExcess::Floats);
    }
    if (++m_tableCount > mostTables) {
        fail(HtmlExcess::Tables);
    }
    if (m_tables.size() > deepestTable) {
        fail(HtmlExcess::TableDepth);
    }
}

void HtmlWorkload::enterCell(const ElementRequest &request)
{
    Table &table = m_tables.back();
    const int row = table.rows - 1;
    // As Qt counts: a span from above moves the cell on by the whole width of that span.
    while (table.column < int(table.freeFrom.size()) &&
           table.freeFrom[size_t(table.column)] > row) {
        table.column += std::max(1, table.spanWidth[size_t(table.column)]);
    }
    table.written += 1;
    const int first = table.column;
    table.column += request.columnSpan;
    table.columns = std::max(table.columns, table.column);
    if (table.columns > mostColumns) {
        fail(HtmlExcess::Columns);
        table.columns = mostColumns;
    }
    if (double(table.rows) * table.columns > mostCells) {
        fail(HtmlExcess::Cells);
    }
    const size_t columns = size_t(table.columns);
    table.freeFrom.resize(columns);
    table.spanWidth.resize(columns);
    for (int i = first; i < std::min(int(columns), table.column); ++i) {
        table.overlaps = table.overlaps || table.freeFrom[size_t(i)] > row;
    }
    if (table.overlaps && table.holdsTables) {
        fail(HtmlExcess::TableOrder);
    }
    table.inCell = true;
    const int rowSpan = std::min(request.rowSpan, int(mostCells));
    for (size_t i = size_t(first); i < std::min(columns, size_t(table.column)); ++i) {
        table.freeFrom[i] = row + rowSpan;
        table.spanWidth[i] = request.columnSpan;
    }
    table.covered += double(request.columnSpan) * rowSpan - 1;
    if (rowSpan > 1 && request.rowSpanAttribute != nullptr) {
        table.spans.push_back({*request.rowSpanAttribute, row, rowSpan, 0});
    }
    table.cellSpan = rowSpan;
    table.cellUpright = top().upright;
    table.widestCell = std::max({table.widestCell, request.width, request.style.sideways});
    endBlock();
    m_heights.push_back(0);
    startBlock();
}

void HtmlWorkload::leaveCell()
{
    endBlock();
    Table &table = m_tables.back();
    const double height = m_heights.back() + table.cellUpright;
    m_heights.pop_back();
    table.inCell = false;
    if (table.cellSpan > 1) {
        m_heights.back() += height;
    } else {
        table.rowHeight = std::max(table.rowHeight, height);
    }
}

void HtmlWorkload::leaveRow()
{
    Table &table = m_tables.back();
    m_heights.back() += std::max(table.rowHeight, linePerFont * ordinaryFont) + table.rowExtra;
    table.rowHeight = 0;
}

void HtmlWorkload::leaveTable()
{
    endBlock();
    Table &table = m_tables.back();
    const double slots = double(table.rows) * table.columns;
    const double cells = std::max(double(table.rows), slots - table.covered);
    // Slots that no tag of the document stands for come out of spans and rows of unequal length.
    const double unwritten = std::max(0.0, slots - table.written);
    m_work += (slots - unwritten) * slotTime;
    m_tangle += unwritten * slotTime;
    const double nested = cellTime * std::max(0.0, passes() / 3 - 1);
    m_work += std::min(cells, table.written) * cellTime;
    m_tangle += std::max(0.0, cells - table.written) * cellTime + cells * nested;
    m_memory += cells * cellMemory;
    if (table.columns * (table.columnExtra + table.widestCell) > greatestWidth) {
        fail(HtmlExcess::Width);
    }
    for (RowSpanUse &use : table.spans) {
        use.rowsLeft = table.rows - use.row;
        if (use.span > use.rowsLeft) {
            m_longSpans.push_back(use);
        }
    }
    m_tables.pop_back();
    const double height = m_heights.back();
    m_heights.pop_back();
    m_heights.back() += height;
    startBlock(true);
}

} // namespace lctrlsex
