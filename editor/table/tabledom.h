#pragma once

class QDomElement;

namespace lctrlsex {

/**
 * Borders and widths of one table of a document, as unifyTableColumnWidths() writes them into
 * markup: the border is collapsed and repeated on every "td", and the widths of the cells become
 * whole pixels that make up the table's, when that is a number of pixels. A null element changes
 * nothing.
 */
void unifyTable(QDomElement table);

} // namespace lctrlsex
