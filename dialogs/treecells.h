#pragma once

#include "visiblerows.h"

class QWidget;

namespace lctrlsex {

/** Puts @p cell, which remembers its row, into a column of @p row in place of what is there. */
void setCell(QTreeWidgetItem *row, int column, QWidget *cell);

/**
 * The row in whose cells @p widget is; null when it is in none of them any more. The widgets of a
 * removed row, or of a cell that was made anew, live until the event loop comes by, and still send.
 */
[[nodiscard]] QTreeWidgetItem *rowOfCell(const QTreeWidget *tree, const QObject *widget);

/**
 * Moves the focus on to the next widget in the cells of @p tree, or back to the one before, row by
 * row; from outside of them to the first one of the current row, or back to the very last one.
 * @p make makes the widgets of a row that has none yet. False, and nothing is done, when there is
 * no further one.
 */
bool focusNextCell(QTreeWidget *tree, const VisibleRows::Make &make, bool isForward);

/**
 * Keeps the focus in a tree while its keys move from row to row: it would hand it on to the widget
 * of the cell that it comes to.
 */
class RowFocus : public QObject
{
public:
    /** Belongs to @p tree. No widget in @p column takes the focus. */
    RowFocus(QTreeWidget *tree, int column);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QTreeWidget *m_tree;
    const int m_column;
};

} // namespace lctrlsex
