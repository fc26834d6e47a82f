#include "programmepanel.h"

#include "drawnicons.h"
#include "lcontrollernode.h"
#include "nodedelegate.h"
#include "programmetreemodel.h"
#include "structureactions.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>

namespace workbench {

ProgrammePanel::ProgrammePanel(ProgrammeTreeModel *model, StructureActions *actions,
                               QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_actions(actions)
    , m_tree(new QTreeView(this))
    , m_hint(new QLabel(this))
    , m_add(new QPushButton(this))
{
    setObjectName(QStringLiteral("ProgrammePanel"));
    buildTree();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_tree, 1);
    m_hint->setObjectName(QStringLiteral("ProgrammeHint"));
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setMargin(12);
    column->addWidget(m_hint);
    column->addWidget(buildToolRow());
    connect(m_actions, &StructureActions::renameWanted, this, &ProgrammePanel::renameCurrent);
    retranslate();
    updateIcons();
    updateHint();
}

void ProgrammePanel::buildTree()
{
    m_tree->setObjectName(QStringLiteral("ProgrammeTree"));
    m_tree->setModel(m_model);
    m_tree->setItemDelegate(new NodeDelegate(m_tree));
    m_tree->setHeaderHidden(true);
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setIndentation(12);
    m_tree->setUniformRowHeights(false);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->setExpandsOnDoubleClick(false);
    m_tree->setDragDropMode(QAbstractItemView::InternalMove);
    m_tree->setDefaultDropAction(Qt::MoveAction);
    m_tree->setDropIndicatorShown(true);
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    for (QAction *action : m_actions->inOrder()) {
        if (action == nullptr) {
            action = new QAction(m_tree);
            action->setSeparator(true);
        }
        m_tree->addAction(action);
    }
    m_tree->expandAll();
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { emit currentNodeChanged(currentNode()); });
    connect(m_tree, &QTreeView::activated, this, [this](const QModelIndex &index) {
        if (LNode *node = m_model->nodeAt(index)) {
            emit nodeActivated(node);
        }
    });
    // What was added is to be seen, wherever it came from.
    connect(m_model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex &parent) {
        m_tree->expand(parent);
        updateHint();
        m_actions->updateEnabled();
    });
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, [this] {
        updateHint();
        m_actions->updateEnabled();
    });
    connect(m_model, &QAbstractItemModel::rowsMoved, m_actions, &StructureActions::updateEnabled);
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        m_tree->expandAll();
        updateHint();
    });
}

QWidget *ProgrammePanel::buildToolRow()
{
    auto *bar = new QWidget(this);
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(6, 4, 6, 4);
    row->setSpacing(2);
    m_add->setObjectName(QStringLiteral("AddButton"));
    auto *menu = new QMenu(m_add);
    menu->addActions({m_actions->addItem(), m_actions->addFrame(), m_actions->addScreen()});
    m_add->setMenu(menu);
    row->addWidget(m_add);
    row->addStretch(1);
    for (QAction *action : {m_actions->duplicate(), m_actions->moveUp(), m_actions->moveDown(),
                            m_actions->remove()}) {
        auto *button = new QToolButton(bar);
        button->setObjectName(action->objectName() + QStringLiteral("Button"));
        button->setAutoRaise(true);
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        row->addWidget(button);
    }
    return bar;
}

LNode *ProgrammePanel::currentNode() const
{
    return m_model->nodeAt(m_tree->currentIndex());
}

void ProgrammePanel::setCurrentNode(LNode *node)
{
    const QModelIndex index = node != nullptr ? m_model->indexOf(node) : QModelIndex();
    m_tree->setCurrentIndex(index);
    if (index.isValid()) {
        m_tree->scrollTo(index);
    }
}

void ProgrammePanel::renameCurrent()
{
    if (m_tree->currentIndex().isValid()) {
        m_tree->setFocus();
        m_tree->edit(m_tree->currentIndex());
    }
}

void ProgrammePanel::focusTree()
{
    m_tree->setFocus();
}

void ProgrammePanel::updateHint()
{
    m_hint->setVisible(m_model->rowCount(m_model->index(0, 0)) == 0);
}

void ProgrammePanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::PaletteChange) {
        updateIcons();
    }
    QWidget::changeEvent(event);
}

void ProgrammePanel::updateIcons()
{
    m_add->setIcon(drawnIcon(Drawing::Add, palette()));
}

void ProgrammePanel::retranslate()
{
    m_tree->setAccessibleName(tr("Programme"));
    m_tree->setAccessibleDescription(
        tr("Controller, screens, frames and text items. F2 renames, Delete removes."));
    m_hint->setText(tr("No screen yet. “Add” below makes one."));
    m_add->setText(tr("Add"));
    m_add->setToolTip(tr("Add a text item, a frame or a screen"));
}

} // namespace workbench
