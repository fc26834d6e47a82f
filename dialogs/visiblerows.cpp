#include "visiblerows.h"

#include <QEvent>
#include <QScrollBar>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace lctrlsex {

/** What fits the preferred height of a dialog. */
static constexpr int firstRows = 20;

VisibleRows::VisibleRows(QTreeWidget *tree, Make make)
    : QObject(tree)
    , m_tree(tree)
    , m_make(std::move(make))
{
    tree->viewport()->installEventFilter(this);
    connect(tree->verticalScrollBar(), &QScrollBar::valueChanged, this, &VisibleRows::update);
    connect(tree->verticalScrollBar(), &QScrollBar::rangeChanged, this, &VisibleRows::schedule);
    connect(tree, &QTreeWidget::itemExpanded, this, &VisibleRows::schedule);
    connect(tree, &QTreeWidget::itemCollapsed, this, &VisibleRows::schedule);
    for (auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(tree->model(), signal, this, &VisibleRows::schedule);
    }
}

bool VisibleRows::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show) {
        schedule();
    }
    return QObject::eventFilter(watched, event);
}

void VisibleRows::schedule()
{
    if (!m_isScheduled) {
        m_isScheduled = true;
        QTimer::singleShot(0, this, [this] {
            m_isScheduled = false;
            update();
        });
    }
}

void VisibleRows::update()
{
    if (!m_tree->isVisible()) {
        QTreeWidgetItemIterator each(m_tree);
        for (int row = 0; row < firstRows && *each != nullptr; ++row, ++each) {
            m_make(*each);
        }
        return;
    }
    const int bottom = m_tree->viewport()->height();
    QTreeWidgetItem *row = m_tree->itemAt(QPoint(0, 0));
    while (row != nullptr && m_tree->visualItemRect(row).top() < bottom) {
        m_make(row);
        row = m_tree->itemBelow(row);
    }
}

} // namespace lctrlsex
