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
    QStringView section; ///< Name of the element between table and row; empty when there is none.
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

/** The first table of @p markup, without what tables inside its cells are made of. */
[[nodiscard]] FoundTable findTable(QStringView markup);

} // namespace lctrlsex
