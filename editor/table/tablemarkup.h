#pragma once

#include "tableoutline.h"

#include <QString>

namespace lctrlsex {

/** What the markup of a table says of its binding. */
struct TableMarks
{
    int tableType = 0;     ///< 0 fixed, 1 rows, 2 columns, 3 both.
    QString dataSourceKey; ///< The bind key of that type.
    bool hasHeader = false;
    bool freezesHeader = false;
    bool fillsArea = false;
};

/**
 * @p html with every table made fit for other renderers: borders collapsed and written on each
 * cell, widths of all cells in whole pixels that make up the table's, and the attributes of
 * @p marks. Everything else stays to the letter, blanks and the order of attributes included. HTML
 * that is not well-formed or has no body comes back unchanged. A table whose own width
 * is no number of pixels keeps the widths of its cells.
 */
[[nodiscard]] QString unifyTableColumnWidths(const QString &html, const TableMarks &marks);

/** HTML with the place of its first table. */
struct OutlinedHtml
{
    QString html;
    FoundTable found;
};

/** unifyTableColumnWidths() with what findTable() finds in the result. */
[[nodiscard]] OutlinedHtml unifyAndOutline(const QString &html, const TableMarks &marks);

} // namespace lctrlsex
