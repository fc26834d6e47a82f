#pragma once

#include <QVector>

namespace lctrlsex {

/** A direction in a table: its lines are rows or columns. */
enum class Axis { Rows, Columns };

/**
 * The slots of a table that one cell covers, or any other rectangle of slots.
 *
 * Plain numbers: nothing here knows of documents.
 */
struct Span
{
    int row = 0;
    int column = 0;
    int rows = 1;
    int columns = 1;

    /** The first line that it covers. */
    [[nodiscard]] int first(Axis axis) const { return axis == Axis::Rows ? row : column; }
    /** The number of lines that it covers. */
    [[nodiscard]] int count(Axis axis) const { return axis == Axis::Rows ? rows : columns; }
    /** The same slots otherwise, with @p first and @p count along @p axis. */
    [[nodiscard]] Span withLines(Axis axis, int first, int count) const;

    [[nodiscard]] bool isEmpty() const { return rows < 1 || columns < 1; }
    [[nodiscard]] bool isSingle() const { return rows == 1 && columns == 1; }
    [[nodiscard]] bool meets(const Span &other) const;

    bool operator==(const Span &other) const;
    bool operator!=(const Span &other) const { return !(*this == other); }
};

/** The smallest area that holds @p area and cuts none of @p spans. */
[[nodiscard]] Span grownOver(Span area, const QVector<Span> &spans);

/**
 * Where @p span is after @p count lines were inserted before line @p at. It grows when the place
 * lies inside it, and only then.
 */
[[nodiscard]] Span afterInsertion(const Span &span, Axis axis, int at, int count);

/** What is left of @p span after @p count lines from line @p at were removed; may be empty. */
[[nodiscard]] Span afterRemoval(const Span &span, Axis axis, int at, int count);

/** @p span cut into @p pieces equal parts along @p axis; none when they would not be equal. */
[[nodiscard]] QVector<Span> equalParts(const Span &span, Axis axis, int pieces);

} // namespace lctrlsex
