#include "tableoutline.h"

namespace lctrlsex {

namespace {

/** How many rows the cells that reach down from above still take in the first two columns. */
class Columns
{
public:
    void beginRow()
    {
        for (int &rows : m_taken) {
            rows -= rows > 0 ? 1 : 0;
        }
        m_next = 0;
    }

    /** The column of the row's next cell. */
    int place(int rows, int columns)
    {
        while (m_next < Counted && m_taken[m_next] > 0) {
            ++m_next;
        }
        const int column = m_next;
        for (int i = 0; i < columns && m_next < Counted; ++i) {
            m_taken[m_next++] = rows;
        }
        return column;
    }

private:
    static constexpr int Counted = 2;

    int m_taken[Counted] = {};
    int m_next = 0;
};

/** Follows the tags from the first table's on. */
class Outliner
{
public:
    Outliner(QStringView markup, FoundTable *found)
        : m_markup(markup)
        , m_found(found)
    {}

    void read(const MarkupTag &tag)
    {
        if (tag.kind == MarkupTag::Kind::Close) {
            close(tag);
        } else if (m_depth >= 0) {
            open(tag);
        } else if (tag.name == QStringView(u"body")) {
            m_found->hasBody = true;
        } else if (!m_found->hasTable && tag.name == QStringView(u"table")) {
            m_found->hasTable = true;
            m_found->table.inside = {tag.end, tag.end};
            m_depth = tag.kind == MarkupTag::Kind::Open ? 0 : -1;
        }
    }

private:
    void open(const MarkupTag &tag)
    {
        const int depth = m_depth + 1; // of the element, in the table
        const bool isOpen = tag.kind == MarkupTag::Kind::Open;
        if (m_rowDepth == 0 && depth <= 2 && tag.name == QStringView(u"tr")) {
            m_columns.beginRow();
            rows().push_back({{tag.begin, tag.end}, depth == 2 ? m_section : QStringView(), {}});
            m_rowDepth = isOpen ? depth : 0;
        } else if (m_rowDepth > 0 && depth == m_rowDepth + 1 && tag.name == QStringView(u"td")) {
            const int column = m_columns.place(spanOf(tag, QLatin1String("rowspan")),
                                               spanOf(tag, QLatin1String("colspan")));
            rows().back().cells.push_back({{tag.begin, tag.end}, column});
            m_isInCell = isOpen;
        } else if (depth == 1) {
            m_section = tag.name;
        }
        m_depth = isOpen ? depth : m_depth;
    }

    void close(const MarkupTag &tag)
    {
        if (m_depth < 0) {
            return;
        }
        if (m_depth == 0) {
            m_found->table.inside.end = tag.begin;
        } else if (m_depth == m_rowDepth) {
            rows().back().span.end = tag.end;
            m_rowDepth = 0;
        } else if (m_isInCell && m_depth == m_rowDepth + 1) {
            rows().back().cells.back().span.end = tag.end;
            m_isInCell = false;
        }
        --m_depth;
    }

    [[nodiscard]] int spanOf(const MarkupTag &tag, QLatin1String name) const
    {
        const QStringView value = markupAttribute(m_markup, tag, name);
        return value.isNull() ? 1 : value.toString().toInt();
    }

    std::vector<OutlinedRow> &rows() { return m_found->table.rows; }

    QStringView m_markup;
    FoundTable *m_found;
    Columns m_columns;
    QStringView m_section;
    int m_depth = -1;   ///< Open elements in the table; -1 outside it.
    int m_rowDepth = 0; ///< Depth of the open row; 0: none.
    bool m_isInCell = false;
};

} // namespace

FoundTable findTable(QStringView markup)
{
    FoundTable found;
    Outliner outliner(markup, &found);
    StrictMarkupReader reader(markup);
    MarkupTag tag;
    while (reader.next(tag)) {
        outliner.read(tag);
    }
    found.isWellFormed = reader.isComplete();
    return found;
}

} // namespace lctrlsex
