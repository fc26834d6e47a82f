#pragma once

#include "contentparts.h"
#include "filledtext.h"
#include "problem.h"
#include "storeditem.h"

namespace player {

/**
 * The bound table of an item: its rows, made of what the item stores and the data, one at a time.
 *
 * - A fixed form is repeated as a whole; its missing lines are rows of empty values.
 * - Dynamic rows: the template row once a line, other rows where the author put them.
 * - Dynamic columns: the template cell of each row once a line, sharing what width the other
 *   columns leave. When pages turn horizontally columns keep the width that they were drawn with,
 *   and those that find no room make up another sheet: the rows come again, on a page of their own.
 * - Adaptive: the first row once a line, its cell as often as the longest line has values.
 *
 * Without lines, all but the fixed form show their header and "No data". Not thread-safe: filling
 * evaluates calculations and rules.
 */
class ItemTemplate
{
public:
    enum State {
        Unbound, ///< There is no table, no key, or one that cannot be bound.
        Broken,  ///< The stored texts do not fit each other; problem() says how.
        Bound
    };

    /** Reads @p item for pages of @p width pixels; @p values gets its lines. */
    ItemTemplate(const StoredItem &item, const sources::DataSnapshot &data, int width,
                 const FillSources &sources);

    [[nodiscard]] State state() const { return m_state; }
    /** What is wrong, as reason and remedy: why it is Broken, or what of it is not shown. */
    [[nodiscard]] const Problems &problems() const { return m_problems; }

    [[nodiscard]] int rowCount() const { return m_rowCount; }
    /** Whether the row is the first of another form or sheet, which begins a page. */
    [[nodiscard]] bool beginsPage(int row) const;
    /** The row that is shown again on top of a page that begins with @p row; -1 for none. */
    [[nodiscard]] int frozenRow(int row) const;

    /** Which template the row is made of; rows of one template differ in their line only. */
    [[nodiscard]] int templateOf(int row) const;
    /** The line that it is filled with; -1 where there is none. */
    [[nodiscard]] int lineOf(int row) const;
    [[nodiscard]] int templateCount() const { return int(m_rows.size()); }
    [[nodiscard]] const FilledText &filled(int index) const { return m_rows[size_t(index)]; }

    /** Appends the markup of rows @p from to @p to, without the second, to @p html. */
    void appendRows(QString *html, int from, int to) const;
    [[nodiscard]] QString expandedRows(int from, int to) const;
    /** The tag of the table around a page that begins with @p row. */
    [[nodiscard]] QString tableTag(int row) const;

    /** The document in front of its text, the text around the table, filled. */
    [[nodiscard]] QString head() const { return m_parts.head; }
    [[nodiscard]] QString prologue() const;
    [[nodiscard]] QString epilogue() const;

private:
    friend class TemplateBuilder;

    FillSources m_sources;
    State m_state = Unbound;
    Problems m_problems;
    ContentParts m_parts;
    FilledText m_prologue;
    FilledText m_epilogue;
    std::vector<FilledText> m_rows; ///< Templates: before, the repeated ones, behind.
    int m_before = 0;               ///< Rows, each of its own template, in front of the others.
    int m_repeated = 0;             ///< Rows that are made of lines.
    int m_cycle = 1;                ///< Templates that these take turns in.
    int m_group = 0;                ///< Rows of a form or a sheet; 0 for no such thing.
    int m_linesPerCycle = 1;        ///< Lines that a cycle takes.
    int m_rowCount = 0;
    bool m_isFrozen = false;
    bool m_isSheet = false;
    QString m_lastTableTag; ///< Of the last sheet, which may be narrower.
};

} // namespace player
