#pragma once

#include "bindkey.h"
#include "datasourceindex.h"
#include "tablecells.h"

namespace lctrlsex {

/** What decides where the placeholders of a bound table stand. */
struct TableBound
{
    int tableType = 0; ///< 0 fixed, 1 rows, 2 columns, 3 both.
    bool hasHeader = false;
    BindKey key;
    bool isList = false; ///< The key delivers several values a line.
};

/**
 * Whether a key of that kind delivers several values a line; @p descriptor is what the
 * configuration says of it, null when it is not there.
 */
[[nodiscard]] bool deliversLists(int kind, const KeyDescriptor *descriptor);

/** The placeholders of a table of @p rows and @p columns; cells that are not in it stay. */
[[nodiscard]] QVector<CellText> placeholderPlan(const TableBound &bound, int rows, int columns);

} // namespace lctrlsex
