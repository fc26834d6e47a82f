#include "tablewidths.h"

#include <algorithm>
#include <numeric>

namespace lctrlsex {

namespace {

constexpr int MostColumns = 1000;

/** Where a cell came to lie. */
struct Placed
{
    int column = 0;
    int columns = 1;
};

/** Puts every cell into the first free slot of its row. */
class Grid
{
public:
    explicit Grid(const QVector<QVector<CellExtent>> &rows)
        : m_taken(rows.size())
    {
        for (int row = 0; row < rows.size(); ++row) {
            QVector<Placed> placed;
            int column = 0;
            for (const CellExtent &cell : rows.at(row)) {
                column = freeSlot(row, column);
                placed.append({column, qBound(1, cell.columns, MostColumns)});
                const int lines = qBound(1, cell.rows, rows.size() - row);
                for (int line = row; line < row + lines; ++line) {
                    take(line, placed.last());
                }
                column += placed.last().columns;
            }
            m_cells.append(placed);
        }
    }

    [[nodiscard]] const QVector<QVector<Placed>> &cells() const { return m_cells; }
    [[nodiscard]] int columns() const { return m_columns; }

private:
    [[nodiscard]] int freeSlot(int row, int column) const
    {
        const QVector<bool> &taken = m_taken.at(row);
        while (column < taken.size() && taken.at(column)) {
            ++column;
        }
        return column;
    }

    void take(int row, const Placed &cell)
    {
        const int end = cell.column + cell.columns;
        QVector<bool> &taken = m_taken[row];
        taken.resize(qMax(taken.size(), end));
        std::fill(taken.begin() + cell.column, taken.begin() + end, true);
        m_columns = qMax(m_columns, end);
    }

    QVector<QVector<bool>> m_taken;
    QVector<QVector<Placed>> m_cells;
    int m_columns = 0;
};

/** What the cells claim for each column; below 0 where nothing is claimed. */
QVector<double> claims(const QVector<QVector<CellExtent>> &rows, const Grid &grid)
{
    QVector<double> widths(grid.columns(), -1);
    for (int row = 0; row < rows.size(); ++row) {
        for (int i = 0; i < rows.at(row).size(); ++i) {
            const CellExtent &cell = rows.at(row).at(i);
            const Placed &place = grid.cells().at(row).at(i);
            for (int c = place.column; cell.width >= 0 && c < place.column + place.columns; ++c) {
                widths[c] = qMax(widths.at(c), cell.width / place.columns);
            }
        }
    }
    return widths;
}

QVector<int> columnWidths(QVector<double> widths, int tableWidth)
{
    double sum = 0;
    int unclaimed = 0;
    for (const double width : qAsConst(widths)) {
        sum += qMax(0.0, width);
        unclaimed += width < 0 ? 1 : 0;
    }
    const double scale = sum > tableWidth ? tableWidth / sum : 1;
    const double share = unclaimed > 0 ? qMax(0.0, tableWidth - sum) / unclaimed : 0;
    QVector<int> whole;
    for (const double width : qAsConst(widths)) {
        whole.append(int(width < 0 ? share : width * scale));
    }
    if (!whole.isEmpty()) {
        whole.last() += tableWidth - std::accumulate(whole.cbegin(), whole.cend(), 0);
    }
    return whole;
}

} // namespace

double pixelsOfWidth(const QString &width, int tableWidth)
{
    bool isNumber = false;
    if (width.endsWith(QLatin1Char('%'))) {
        const double share = width.chopped(1).toDouble(&isNumber);
        return isNumber && share >= 0 ? share * tableWidth / 100 : -1;
    }
    const double pixels = width.toDouble(&isNumber);
    return isNumber && pixels >= 0 && pixels < 1e6 ? pixels : -1;
}

QVector<QVector<int>> cellWidths(const QVector<QVector<CellExtent>> &rows, int tableWidth,
                                 int perJoint)
{
    const Grid grid(rows);
    const QVector<int> columns = columnWidths(claims(rows, grid), tableWidth);
    QVector<QVector<int>> widths;
    for (const QVector<Placed> &row : grid.cells()) {
        QVector<int> inRow;
        for (const Placed &cell : row) {
            const auto begin = columns.cbegin() + cell.column;
            inRow.append(std::accumulate(begin, begin + cell.columns, 0) +
                         perJoint * (cell.columns - 1));
        }
        widths.append(inRow);
    }
    return widths;
}

} // namespace lctrlsex
