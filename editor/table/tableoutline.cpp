#include "tableoutline.h"

#include <utility>

namespace lctrlsex {

namespace {

constexpr int CountedColumns = 2;

} // namespace

void TableOutliner::read(const MarkupTag &tag)
{
    if (tag.kind == MarkupTag::Kind::Close) {
        close(tag);
    } else if (m_depth >= 0) {
        open(tag);
    } else if (tag.name == QStringView(u"body")) {
        m_found.hasBody = true;
    } else if (!m_found.hasTable && tag.name == QStringView(u"table")) {
        m_found.hasTable = true;
        m_found.table.inside = {tag.end, tag.end};
        m_depth = tag.kind == MarkupTag::Kind::Open ? 0 : -1;
    }
}

FoundTable TableOutliner::take(bool isWellFormed)
{
    m_found.isWellFormed = isWellFormed;
    return std::move(m_found);
}

void TableOutliner::open(const MarkupTag &tag)
{
    const int depth = m_depth + 1; // of the element, in the table
    const bool isOpen = tag.kind == MarkupTag::Kind::Open;
    if (m_rowDepth == 0 && depth <= 2 && tag.name == QStringView(u"tr")) {
        addRow(tag);
        m_rowDepth = isOpen ? depth : 0;
    } else if (m_rowDepth > 0 && depth == m_rowDepth + 1 && tag.name == QStringView(u"td")) {
        addCell(tag);
        m_isInCell = isOpen;
    } else if (depth == 1) {
        m_section = tag.name.toString();
    }
    m_depth = isOpen ? depth : m_depth;
}

void TableOutliner::close(const MarkupTag &tag)
{
    if (m_depth < 0) {
        return;
    }
    std::vector<OutlinedRow> &rows = m_found.table.rows;
    if (m_depth == 0) {
        m_found.table.inside.end = tag.begin;
    } else if (m_depth == m_rowDepth) {
        rows.back().span.end = tag.end;
        m_rowDepth = 0;
    } else if (m_isInCell && m_depth == m_rowDepth + 1) {
        rows.back().cells.back().span.end = tag.end;
        m_isInCell = false;
    }
    --m_depth;
}

void TableOutliner::addRow(const MarkupTag &tag)
{
    std::vector<OutlinedRow> &rows = m_found.table.rows;
    const size_t cells = rows.empty() ? 0 : rows.back().cells.size();
    rows.push_back({{tag.begin, tag.end}, m_depth == 1 ? m_section : QString(), {}});
    rows.back().cells.reserve(cells);
    m_column = 0;
    for (int &left : m_taken) {
        left -= left > 0 ? 1 : 0;
    }
}

void TableOutliner::addCell(const MarkupTag &tag)
{
    while (m_column < CountedColumns && m_taken[m_column] > 0) {
        ++m_column;
    }
    m_found.table.rows.back().cells.push_back({{tag.begin, tag.end}, m_column});
    if (m_column == CountedColumns) {
        return;
    }
    const int lines = spanOf(tag, QLatin1String("rowspan"));
    const int columns = spanOf(tag, QLatin1String("colspan"));
    for (int i = 0; i < columns && m_column < CountedColumns; ++i) {
        m_taken[m_column++] = lines;
    }
}

int TableOutliner::spanOf(const MarkupTag &tag, QLatin1String name) const
{
    const QStringView value = markupAttribute(m_markup, tag, name);
    return qMax(1, value.isNull() ? 1 : value.toString().toInt());
}

FoundTable findTable(QStringView markup)
{
    TableOutliner outliner(markup);
    StrictMarkupReader reader(markup);
    MarkupTag tag;
    while (reader.next(tag)) {
        outliner.read(tag);
    }
    return outliner.take(reader.isComplete());
}

} // namespace lctrlsex
