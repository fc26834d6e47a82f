#pragma once

#include "ltableproperties.h"

#include <QPointer>
#include <QTextEdit>

class QTextTable;

namespace lctrlsex {

struct TableBound;

/** The table work of an editor: what its table menu does to the document of its view. */
class TableCommands
{
public:
    /** Numbers of the operations, as the actions of the menus carry them. */
    enum Code : int {
        InsertRowAbove = 12,
        InsertRowBelow = 13,
        DeleteRow = 14,
        InsertColumnLeft = 16,
        InsertColumnRight = 17,
        DeleteColumn = 18,
        Merge = 19,
        Unmerge = 20,
        AlignTop = 24,
        AlignBottom = 25,
        AlignMiddle = 26
    };

    /** Which groups of the table menu can be used now. */
    struct MenuState
    {
        bool rows = false;
        bool columns = false;
        bool merge = false;
        bool range = false; ///< A rectangle of cells is selected.
        bool split = false;
        bool properties = false;
    };

    /** Works on the document and the cursor of @p view; does nothing once that is gone. */
    explicit TableCommands(QTextEdit *view);

    /** Whether the document has a table; costs nothing to speak of. */
    [[nodiscard]] bool hasTable() const;
    /** The table that the cursor is in; null outside. */
    [[nodiscard]] QTextTable *current() const;

    /**
     * Inserts a table as @p record says at the cursor, one undo step, see insertTable(). False,
     * and nothing done, when there is one already or isUsable() says no.
     */
    bool insert(const LUM_EditInterface::LTableProperties &record, Qt::Alignment alignment);
    /** Gives the current table what @p record says, one undo step, see reformatTable(). */
    void reformat(const LUM_EditInterface::LTableProperties &record);
    /** The current table's record, see readTable(). */
    [[nodiscard]] LUM_EditInterface::LTableProperties record() const;

    /** What the cursor's position allows in a table of @p type, 0 to 3. */
    [[nodiscard]] MenuState menuState(int type) const;

    /**
     * Does the operation of @p code, a Code, in the current table of @p type. Rows and columns are
     * inserted beside the whole of the current cell; with a range of cells selected, all its rows
     * or columns are deleted. Cells are merged in a fixed form only, type 0, and only a selected
     * range. Each is one undo step. Anything else is ignored.
     */
    void operate(int code, int type);

    /**
     * Splits the current cell into @p pieces equal parts, one below the other when @p vertical,
     * else side by side; see splitCell(). False when the cell does not cover so many lines.
     */
    bool splitCell(bool vertical, int pieces);

    /**
     * Moves the cursor to the next cell or the one before; behind the last one a row is added where
     * a table of @p type has rows of the author's. False outside a table.
     */
    bool moveByTab(bool forward, int type);

    /**
     * Puts @p cells into the table of @p type from the current cell on, see fillCells(). Returns
     * how many found no place, -1 outside a table.
     */
    int fill(const QVector<QStringList> &cells, int type, const QTextCharFormat &format);

    /** Writes the placeholders of @p bound into the first table, see writeCells(). */
    void writePlaceholders(const TableBound &bound, const QTextCharFormat &format);

private:
    QPointer<QTextEdit> m_view;
};

} // namespace lctrlsex
