#pragma once

#include <QMetaType>

namespace LUM_EditInterface {

/**
 * What the user set for the one table of a document.
 *
 * A plain value: it travels between the editor, the view, the properties dialog and the node. The
 * defaults are those of a record that is made to read a table.
 */
struct LTableProperties
{
    /** Number of rows, at least 1. */
    int rows = 2;
    /** Number of columns, at least 1. */
    int columns = 2;
    /** Background of the table: red + green * 256 + blue * 65536, no alpha. */
    unsigned int backgroundColor = 0;
    /** Column width in pixels; 0 leaves the width to the layout. */
    int width = 0;
    /** Border width in pixels, 0 to 999. */
    int borderWidth = 0;
    /** Border colour, encoded as the background. */
    unsigned int borderColor = 0;
    /** Space between the border of a cell and its contents in pixels, 0 to 999. */
    int cellPadding = 0;
    /** 0 fixed form, 1 dynamic rows, 2 dynamic columns, 3 adaptive rows and columns. */
    int type = 0;
    /** Direction in which pages turn: 0 vertical, 1 horizontal. */
    int pageTurnDirection = 0;
    /** The first row is a header. */
    bool header = true;
    /** The first row is repeated on every page. */
    bool fixedHeader = false;
    /** The table is stretched to its region. */
    bool fillArea = false;
};

/** True when all twelve fields are equal. */
[[nodiscard]] bool operator==(const LTableProperties &left, const LTableProperties &right);
[[nodiscard]] inline bool operator!=(const LTableProperties &left, const LTableProperties &right)
{
    return !(left == right);
}

} // namespace LUM_EditInterface

Q_DECLARE_METATYPE(LUM_EditInterface::LTableProperties)
