#pragma once

#include <QObject>

#include <functional>

class QTreeWidget;
class QTreeWidgetItem;

namespace lctrlsex {

/**
 * Has the widgets in the cells of a tree made row by row, when the row comes into view: a tree of
 * thousands of rows opens as fast as one of twenty.
 */
class VisibleRows : public QObject
{
public:
    using Make = std::function<void(QTreeWidgetItem *)>;

    /**
     * Belongs to @p tree. @p make gets a row whenever it is in view, so that it has to look whether
     * the row has its widgets, and must add or remove no row.
     */
    VisibleRows(QTreeWidget *tree, Make make);

    /**
     * Makes what is in view now, and at least the first rows, because a tree that was not shown
     * yet does not know its height. Otherwise everything is done by itself.
     */
    void update();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DISABLE_COPY(VisibleRows)

    void schedule();

    QTreeWidget *m_tree;
    Make m_make;
    bool m_isScheduled = false;
};

} // namespace lctrlsex
