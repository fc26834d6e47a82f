#include "treecells.h"

#include "configurationform.h"

#include <QEvent>
#include <QTreeWidget>
#include <QVariant>

namespace lctrlsex {

namespace {

bool takesFocus(const QWidget *widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabled() &&
           !widget->isHidden();
}

QWidgetList focusWidgets(const QTreeWidget *tree, QTreeWidgetItem *row)
{
    QWidgetList found;
    for (int column = 0; column < tree->columnCount(); ++column) {
        QWidget *cell = tree->itemWidget(row, column);
        if (cell == nullptr) {
            continue;
        }
        QWidgetList inside = {cell};
        if (!takesFocus(cell)) {
            inside = cell->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        }
        std::copy_if(inside.cbegin(), inside.cend(), std::back_inserter(found), takesFocus);
    }
    return found;
}

QTreeWidgetItem *lastRow(const QTreeWidget *tree)
{
    QTreeWidgetItem *row = tree->topLevelItem(tree->topLevelItemCount() - 1);
    if (row != nullptr && row->isExpanded() && row->childCount() > 0) {
        row = row->child(row->childCount() - 1);
    }
    return row;
}

QTreeWidgetItem *entryRow(const QTreeWidget *tree, bool isForward)
{
    if (!isForward) {
        return lastRow(tree);
    }
    return tree->currentItem() != nullptr ? tree->currentItem() : tree->topLevelItem(0);
}

} // namespace

void setCell(QTreeWidgetItem *row, int column, QWidget *cell)
{
    QTreeWidget *tree = row->treeWidget();
    if (QWidget *former = tree->itemWidget(row, column)) {
        former->hide(); // it is deleted later only
    }
    cell->setProperty("rowItem", QVariant::fromValue(row));
    tree->setItemWidget(row, column, cell);
}

QTreeWidgetItem *rowOfCell(const QTreeWidget *tree, const QObject *widget)
{
    const QObject *cell = widget;
    while (cell != nullptr && cell->parent() != tree->viewport()) {
        cell = cell->parent();
    }
    QTreeWidgetItem *row = rowOf(cell, tree);
    for (int column = 0; row != nullptr && column < tree->columnCount(); ++column) {
        if (tree->itemWidget(row, column) == cell) {
            return row;
        }
    }
    return nullptr;
}

/**
 * Moves the focus on to the next widget in the cells, or back to the one before, row by row; from
 * outside of them to the first one of the current row, or back to the very last one. False, and
 * nothing is done, when there is no further one.
 */
static bool focusNextCell(QTreeWidget *tree, const VisibleRows::Make &make, bool isForward)
{
    QWidget *focused = tree->window()->focusWidget();
    QTreeWidgetItem *row = rowOfCell(tree, focused);
    int next = 0;
    if (row != nullptr) {
        next = focusWidgets(tree, row).indexOf(focused) + (isForward ? 1 : -1);
    } else if ((row = entryRow(tree, isForward)) != nullptr) {
        make(row);
        next = isForward ? 0 : focusWidgets(tree, row).size() - 1;
    }
    while (row != nullptr) {
        const QWidgetList widgets = focusWidgets(tree, row);
        if (next >= 0 && next < widgets.size()) {
            tree->scrollToItem(row);
            widgets.at(next)->setFocus(isForward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
        row = isForward ? tree->itemBelow(row) : tree->itemAbove(row);
        if (row != nullptr) {
            make(row);
            next = isForward ? 0 : focusWidgets(tree, row).size() - 1;
        }
    }
    return false;
}

bool tabThroughCells(QTreeWidget *tree, const VisibleRows::Make &make, QWidget *behind,
                     bool isForward)
{
    const QWidget *focused = tree->window()->focusWidget();
    if (focused != nullptr && tree->viewport()->isAncestorOf(focused)) {
        if (!focusNextCell(tree, make, isForward)) {
            (isForward ? behind : tree)
                ->setFocus(isForward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        }
        return true;
    }
    const bool isBeside = isForward ? focused == tree : focused == behind;
    return isBeside && focusNextCell(tree, make, isForward);
}

RowFocus::RowFocus(QTreeWidget *tree, int column)
    : QObject(tree)
    , m_tree(tree)
    , m_column(column)
{
    tree->installEventFilter(this);
}

bool RowFocus::eventFilter(QObject *watched, QEvent *event)
{
    const bool isMove = event->type() == QEvent::FocusIn || event->type() == QEvent::KeyPress;
    QTreeWidgetItem *row = isMove ? entryRow(m_tree, true) : nullptr;
    if (row != nullptr && m_tree->currentColumn() != m_column) {
        m_tree->setCurrentItem(row, m_column, QItemSelectionModel::NoUpdate);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace lctrlsex
