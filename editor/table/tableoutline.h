#pragma once

#include "strictmarkup.h"

#include <QStringView>

#include <vector>

namespace lctrlsex {

/** A stretch of markup: its first position and the position behind it. */
struct MarkupSpan
{
    int begin = 0;
    int end = 0;

    [[nodiscard]] QStringView in(QStringView markup) const
    {
        return markup.mid(begin, end - begin);
    }
};

/** A "td" and the column in which it begins; of those behind the second it is only told so much. */
struct OutlinedCell
{
    MarkupSpan span;
    int column = 0; ///< 0, 1, or 2 for any further one.
};

/** A "tr" with the cells that begin in it. */
struct OutlinedRow
{
    MarkupSpan span;
    QString section; ///< Name of the element between table and row; empty when there is none.
    std::vector<OutlinedCell> cells;
};

/** Where the parts of a table stand. */
struct TableOutline
{
    MarkupSpan inside; ///< Between its two tags.
    std::vector<OutlinedRow> rows;
};

/** What was found in markup. */
struct FoundTable
{
    bool isWellFormed = false;
    bool hasBody = false;
    bool hasTable = false;
    TableOutline table;
};

/** Finds the first table while somebody reads the tags of @p markup, which outlives this. */
class TableOutliner
{
public:
    explicit TableOutliner(QStringView markup)
        : m_markup(markup)
    {}

    /** To be called with every tag in turn. */
    void read(const MarkupTag &tag);
    /** What was found; @p isWellFormed is what the reader of the tags says. */
    [[nodiscard]] FoundTable take(bool isWellFormed);

private:
    void open(const MarkupTag &tag);
    void close(const MarkupTag &tag);
    void addRow(const MarkupTag &tag);
    void addCell(const MarkupTag &tag);
    [[nodiscard]] int spanOf(const MarkupTag &tag, QLatin1String name) const;

    QStringView m_markup;
    FoundTable m_found;
    QString m_section;
    int m_depth = -1;   ///< Open elements in the table; -1 outside it.
    int m_rowDepth = 0; ///< Depth of the open row; 0: none.
    bool m_isInCell = false;
    int m_column = 0;     ///< Of the row's next cell, as OutlinedCell counts.
    int m_taken[2] = {0}; ///< Rows that cells from above still take in these columns.
};

/** The first table of @p markup, without what tables inside its cells are made of. */
[[nodiscard]] FoundTable findTable(QStringView markup);

} // namespace lctrlsex
