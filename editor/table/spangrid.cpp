#include "spangrid.h"

#include <QtGlobal>

namespace lctrlsex {

namespace {

/** How many of the lines from @p first, @p count in number, lie in the range given. */
int overlap(int first, int count, int rangeFirst, int rangeEnd)
{
    return qMax(0, qMin(first + count, rangeEnd) - qMax(first, rangeFirst));
}

Span united(const Span &left, const Span &right)
{
    Span both;
    both.row = qMin(left.row, right.row);
    both.column = qMin(left.column, right.column);
    both.rows = qMax(left.row + left.rows, right.row + right.rows) - both.row;
    both.columns = qMax(left.column + left.columns, right.column + right.columns) - both.column;
    return both;
}

} // namespace

Span Span::withLines(Axis axis, int first, int count) const
{
    return axis == Axis::Rows ? Span{first, column, count, columns} : Span{row, first, rows, count};
}

bool Span::meets(const Span &other) const
{
    return row < other.row + other.rows && other.row < row + rows &&
           column < other.column + other.columns && other.column < column + columns;
}

bool Span::operator==(const Span &other) const
{
    return row == other.row && column == other.column && rows == other.rows &&
           columns == other.columns;
}

Span grownOver(Span area, const QVector<Span> &spans)
{
    for (bool grew = true; grew;) {
        const Span before = area;
        for (const Span &span : spans) {
            if (span.meets(area)) {
                area = united(area, span);
            }
        }
        grew = area != before;
    }
    return area;
}

Span afterInsertion(const Span &span, Axis axis, int at, int count)
{
    const int first = span.first(axis);
    if (at <= first) {
        return span.withLines(axis, first + count, span.count(axis));
    }
    const bool isInside = at < first + span.count(axis);
    return span.withLines(axis, first, span.count(axis) + (isInside ? count : 0));
}

Span afterRemoval(const Span &span, Axis axis, int at, int count)
{
    const int first = span.first(axis);
    const int lost = overlap(at, count, first, first + span.count(axis));
    return span.withLines(axis, first - overlap(at, count, 0, first), span.count(axis) - lost);
}

QVector<Span> equalParts(const Span &span, Axis axis, int pieces)
{
    QVector<Span> parts;
    if (pieces < 1 || span.count(axis) % pieces != 0) {
        return parts;
    }
    const int size = span.count(axis) / pieces;
    for (int i = 0; i < pieces && size > 0; ++i) {
        parts.append(span.withLines(axis, span.first(axis) + i * size, size));
    }
    return parts;
}

} // namespace lctrlsex
