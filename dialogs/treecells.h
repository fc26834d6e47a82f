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
 * What Tab does in a dialog with @p tree: row by row through the widgets in its cells, from the
 * tree to the first one of the current row, and from the last one of all to @p behind, which stands
 * behind the tree; the other way round when not @p isForward. @p make makes the widgets of a row
 * that has none yet. False, and nothing is done, where the focus is elsewhere.
 */
bool tabThroughCells(QTreeWidget *tree, const VisibleRows::Make &make, QWidget *behind,
                     bool isForward);

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
