#pragma once

#include <QString>
#include <QVector>

namespace lctrlsex {

/** A cell as markup describes it. */
struct CellExtent
{
    int rows = 1;
    int columns = 1;
    double width = -1; ///< In pixels, over all its columns; below 0: none is given.
};

/** The attribute @p width of a cell in pixels, -1 when it claims none; may be in percent. */
[[nodiscard]] double pixelsOfWidth(const QString &width, int tableWidth);

/**
 * The width in whole pixels of every cell of a table, in the order given: @p rows are its rows from
 * top to bottom, each with the cells that begin in it from left to right.
 *
 * A column is as wide as the widest share that a cell claims for it; columns without a claim divide
 * what is left. Claims that are too large for @p tableWidth shrink alike. What rounding leaves goes
 * to the last column, so that the columns make up @p tableWidth, which is above 0. A cell over
 * several columns has @p perJoint more for each border between them. Spans are cut to the table.
 */
[[nodiscard]] QVector<QVector<int>> cellWidths(const QVector<QVector<CellExtent>> &rows,
                                               int tableWidth, int perJoint);

} // namespace lctrlsex
