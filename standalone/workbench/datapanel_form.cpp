#include "datamodel.h"
#include "datapanel.h"
#include "drawnicons.h"
#include "sourcehealth.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QTreeView>

namespace workbench {

using sources::SourceHealth;

namespace {

/** Sources stand out from their keys, and one that fails from the others. */
class DataDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const bool isSource = !index.parent().isValid();
        if (!isSource) {
            return;
        }
        const auto state = SourceHealth::State(index.data(DataModel::StateRole).toInt());
        if (index.column() == DataModel::NameColumn) {
            option->font.setBold(true);
        } else if (state != SourceHealth::Failed) {
            QColor pale = option->palette.color(QPalette::Text);
            pale.setAlphaF(0.65);
            option->palette.setColor(QPalette::Text, pale);
        }
        const bool isBad = state == SourceHealth::Failed || state == SourceHealth::Stale;
        if (isBad && index.column() == DataModel::NameColumn) {
            option->features |= QStyleOptionViewItem::HasDecoration;
            option->icon = drawnIcon(
                state == SourceHealth::Failed ? Drawing::Error : Drawing::Warning, option->palette);
            option->decorationSize = QSize(16, 16);
        }
    }
};

} // namespace

QAction *DataPanel::addAction(const QString &name, void (DataPanel::*run)())
{
    auto *action = new QAction(this);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void DataPanel::buildActions()
{
    m_edit = addAction(QStringLiteral("EditSource"), &DataPanel::editSource);
    m_read = addAction(QStringLiteral("ReadSource"), &DataPanel::readNow);
    m_remove = addAction(QStringLiteral("RemoveSource"), &DataPanel::removeSource);
    m_insert = addAction(QStringLiteral("InsertValue"), &DataPanel::insertField);
    m_bind = addAction(QStringLiteral("BindTable"), &DataPanel::bindTable);
    m_copy = addAction(QStringLiteral("CopyKey"), &DataPanel::copyKey);
}

/** All of the panel, from top to bottom. */
void DataPanel::buildColumn()
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_search->setObjectName(QStringLiteral("DataSearch"));
    m_search->setClearButtonEnabled(true);
    auto *searchRow = new QHBoxLayout;
    searchRow->setContentsMargins(6, 6, 6, 4);
    searchRow->addWidget(m_search);
    column->addLayout(searchRow);
    column->addWidget(m_tree, 1);
    for (QLabel *label : {m_hint, m_error, m_detail}) {
        label->setWordWrap(true);
        label->setMargin(8);
        label->setTextFormat(Qt::PlainText);
        column->addWidget(label);
    }
    m_hint->setObjectName(QStringLiteral("DataHint"));
    m_hint->setAlignment(Qt::AlignCenter);
    m_detail->setObjectName(QStringLiteral("DataDetail"));
    m_detail->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_error->setObjectName(QStringLiteral("DataError"));
    column->addWidget(buildToolRow());
}

void DataPanel::buildTree()
{
    m_filter->setSourceModel(m_model);
    m_filter->setRecursiveFilteringEnabled(true);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filter->setFilterKeyColumn(-1);
    m_tree->setObjectName(QStringLiteral("DataTree"));
    m_tree->setModel(m_filter);
    m_tree->setItemDelegate(new DataDelegate(m_tree));
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setIndentation(12);
    m_tree->setUniformRowHeights(true);
    m_tree->setDragEnabled(true);
    m_tree->setDragDropMode(QAbstractItemView::DragOnly);
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setExpandsOnDoubleClick(false);
    m_tree->header()->setStretchLastSection(true);
    m_tree->header()->resizeSection(DataModel::NameColumn, 150);
    auto *separator = new QAction(m_tree);
    separator->setSeparator(true);
    m_tree->addActions({m_insert, m_bind, m_copy, separator, m_read, m_edit, m_remove});
    m_tree->expandAll();
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DataPanel::updateActions);
    connect(m_tree, &QTreeView::activated, this, &DataPanel::activate);
    connect(m_filter, &QAbstractItemModel::rowsInserted, m_tree, &QTreeView::expand);
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, &DataPanel::updateActions);
    connect(m_filter, &QAbstractItemModel::rowsRemoved, this, &DataPanel::updateActions);
    connect(m_filter, &QAbstractItemModel::modelReset, this, &DataPanel::updateActions);
    connect(m_filter, &QAbstractItemModel::dataChanged, this, &DataPanel::updateDetail);
}

QWidget *DataPanel::buildToolRow()
{
    auto *bar = new QWidget(this);
    auto *column = new QVBoxLayout(bar);
    column->setContentsMargins(6, 4, 6, 4);
    column->setSpacing(4);
    auto *uses = new QHBoxLayout;
    for (QAction *action : {m_insert, m_bind}) {
        auto *button = new QToolButton(bar);
        button->setObjectName(action->objectName() + QStringLiteral("Button"));
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        uses->addWidget(button);
    }
    column->addLayout(uses);
    auto *row = new QHBoxLayout;
    row->setSpacing(2);
    column->addLayout(row);
    m_add->setObjectName(QStringLiteral("AddSourceButton"));
    m_add->setMenu(m_addMenu);
    row->addWidget(m_add);
    row->addStretch(1);
    for (QAction *action : {m_read, m_edit, m_remove}) {
        auto *button = new QToolButton(bar);
        button->setObjectName(action->objectName() + QStringLiteral("Button"));
        button->setAutoRaise(true);
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        row->addWidget(button);
    }
    return bar;
}

} // namespace workbench
