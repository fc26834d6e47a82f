#include "lconditionalstyling.h"

#include "colorbutton.h"
#include "conditioncells.h"
#include "configurationform.h"
#include "fullcelleditordelegate.h"
#include "treecells.h"
#include "trialpanel.h"
#include "visiblerows.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

using lctrlsex::ConditionItem;
using lctrlsex::ConditionRow;

namespace {

constexpr QSize preferredSize(1800, 600);
constexpr int leastSectionWidth = 100;

/** The tree, and with it the dialog, is white whatever the palette of the application. */
constexpr char treeStyle[] =
    "QTreeWidget { border: 2px solid #d0d0d0; border-radius: 2px; background: white; outline: 0;"
    " gridline-color: #f0f0f0; }"
    "QTreeView::branch { image: none; }"
    "QTreeWidget::item:selected { background: #e6f2ff; color: black; }"
    "QTreeWidget::item { border: 1px solid #e0e0e0; }"
    "QComboBox { background: #ffffff; color: #333333; }"
    "QComboBox:disabled { background: #f0f0f0; color: #333333; }";

QStringList headers()
{
    return {LConditionalStyling::tr("Name"),
            LConditionalStyling::tr("Input Source"),
            LConditionalStyling::tr("Serial Number"),
            LConditionalStyling::tr("Expression Type"),
            LConditionalStyling::tr("Expression"),
            LConditionalStyling::tr("Font"),
            LConditionalStyling::tr("Font Size"),
            LConditionalStyling::tr("Color"),
            LConditionalStyling::tr("BackgroundColor"),
            LConditionalStyling::tr("Bold"),
            LConditionalStyling::tr("Italic"),
            LConditionalStyling::tr("Underline"),
            LConditionalStyling::tr("Operation")};
}

ConditionRow newCondition()
{
    ConditionRow row;
    row.style = lctrlsex::newConditionStyle(QApplication::font().family());
    return row;
}

} // namespace

LConditionalStyling::LConditionalStyling(QWidget *parent)
    : QDialog(parent)
{
    qRegisterMetaType<QTreeWidgetItem *>("QTreeWidgetItem*");
    setWindowTitle(tr("Conditional Styling"));
    buildTree();
    // Behind the tree's own: in the other order Qt draws the tree's header in the native style.
    setStyleSheet(QStringLiteral("LConditionalStyling { background: white; }"));
    m_clipboard = new lctrlsex::ConfigurationClipboard(m_tree, this);
    m_clipboard->connectActions(this, {SLOT(onCopySelectAction()), SLOT(onCopyAllAction()),
                                       SLOT(onPasteAction()), SLOT(onCoverAction()),
                                       SLOT(onDeleteAllAction())});
    addShortcuts();
    lctrlsex::lightenOnDark(this);
    lctrlsex::fitToScreen(this, preferredSize);
    scheduleTrial();
}

LConditionalStyling::~LConditionalStyling()
{
    // What is selected, focused and seen changes once more, while all of this is still there.
    hide();
    m_tree->disconnect();
    delete m_tree;
}

void LConditionalStyling::buildTree()
{
    const lctrlsex::ConfigurationForm form(this, headers());
    m_tree = form.tree;
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->setItemDelegate(new FullCellEditorDelegate(m_tree));
    m_tree->setUniformRowHeights(true);
    m_tree->setStyleSheet(QLatin1String(treeStyle) + QLatin1String(lctrlsex::headerStyle));
    QHeaderView *header = m_tree->header();
    header->setMinimumSectionSize(leastSectionWidth);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(lctrlsex::ExpressionColumn, QHeaderView::Stretch);
    header->setResizeContentsPrecision(64); // a tree of thousands of rows is not measured whole
    lctrlsex::setEmptyHint(m_tree, tr("No conditional styles yet. \"Add configuration item\" makes "
                                      "the first one."));
    m_cells = new lctrlsex::ConditionCells(
        m_tree, this,
        {SLOT(onAddButtonClicked()), SLOT(onDeleteButtonClicked()), SLOT(onColorButtonClicked())});
    m_visibleRows = new lctrlsex::VisibleRows(
        m_tree, [this](QTreeWidgetItem *row) { m_cells->make(static_cast<ConditionItem *>(row)); });
    m_trial = new lctrlsex::TrialPanel(this);
    form.layout->insertWidget(form.layout->indexOf(form.buttonBox), m_trial);

    connect(form.addButton, SIGNAL(clicked()), this, SLOT(onAddRootButtonClicked()));
    connect(m_tree, SIGNAL(itemChanged(QTreeWidgetItem *, int)), this,
            SLOT(onItemChanged(QTreeWidgetItem *, int)));
    connect(m_tree, SIGNAL(itemDoubleClicked(QTreeWidgetItem *, int)), this,
            SLOT(onItemDoubleClicked(QTreeWidgetItem *, int)));
    connect(m_tree, SIGNAL(customContextMenuRequested(QPoint)), this,
            SLOT(showContextMenu(QPoint)));
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &LConditionalStyling::scheduleTrial);
    connect(m_cells, &lctrlsex::ConditionCells::changed, this, &LConditionalStyling::scheduleTrial);
    connect(m_trial, &lctrlsex::TrialPanel::changed, this, &LConditionalStyling::scheduleTrial);
}

// The tree has no edit triggers, and buttons in cells are far for a keyboard.
void LConditionalStyling::addShortcuts()
{
    const auto add = [this](int key, void (LConditionalStyling::*run)(ConditionItem *)) {
        auto *shortcut = new QShortcut(key, m_tree, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, run] {
            if (ConditionItem *row = currentItem()) {
                (this->*run)(row);
            }
        });
    };
    add(Qt::Key_F2, &LConditionalStyling::editName);
    add(Qt::Key_Insert, &LConditionalStyling::addCondition);
    add(Qt::Key_Delete, &LConditionalStyling::deleteRow);
}

bool LConditionalStyling::focusNextPrevChild(bool next)
{
    const auto make = [this](QTreeWidgetItem *row) {
        m_cells->make(static_cast<ConditionItem *>(row));
    };
    return lctrlsex::tabThroughCells(m_tree, make, m_trial->focusProxy(), next) ||
           QDialog::focusNextPrevChild(next);
}

void LConditionalStyling::keyPressEvent(QKeyEvent *event)
{
    if (!lctrlsex::isEnterInCell(event, m_tree)) {
        QDialog::keyPressEvent(event);
    }
}

void LConditionalStyling::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    stretchExpressions();
}

// Where all columns do not fit, the one that stretches would be left with next to nothing.
void LConditionalStyling::stretchExpressions()
{
    QHeaderView *header = m_tree->header();
    int others = 0;
    for (int column = 0; column < header->count(); ++column) {
        others += column == lctrlsex::ExpressionColumn ? 0 : header->sectionSize(column);
    }
    const bool fits = others + 2 * leastSectionWidth <= m_tree->viewport()->width();
    const auto mode = fits ? QHeaderView::Stretch : QHeaderView::ResizeToContents;
    if (header->sectionResizeMode(lctrlsex::ExpressionColumn) != mode) {
        header->setSectionResizeMode(lctrlsex::ExpressionColumn, mode);
    }
}

ConditionItem *LConditionalStyling::itemAt(int index) const
{
    return static_cast<ConditionItem *>(m_tree->topLevelItem(index));
}

ConditionItem *LConditionalStyling::currentItem() const
{
    return static_cast<ConditionItem *>(m_tree->currentItem());
}

void LConditionalStyling::onAddRootButtonClicked()
{
    auto *item = new ConditionItem(uniqueName(tr("Configuration item"), nullptr), newCondition());
    m_tree->addTopLevelItem(item);
    item->setExpanded(true);
    m_cells->make(item);
    m_tree->setCurrentItem(item);
    m_tree->scrollToItem(item);
    m_tree->setFocus();
    stretchExpressions();
}

void LConditionalStyling::onAddButtonClicked()
{
    if (auto *row = static_cast<ConditionItem *>(lctrlsex::rowOf(sender(), m_tree))) {
        addCondition(row);
    }
}

void LConditionalStyling::addCondition(ConditionItem *row)
{
    QTreeWidgetItem *item = row->parent() != nullptr ? row->parent() : row;
    auto *condition = new ConditionItem(newCondition());
    item->addChild(condition);
    condition->setText(lctrlsex::SerialColumn, QString::number(item->childCount() + 1));
    item->setExpanded(true);
    m_cells->make(condition);
    m_tree->setCurrentItem(condition);
    m_tree->scrollToItem(condition);
    scheduleTrial();
}

void LConditionalStyling::onDeleteButtonClicked()
{
    if (auto *row = static_cast<ConditionItem *>(lctrlsex::rowOf(sender(), m_tree))) {
        deleteRow(row);
    }
}

void LConditionalStyling::deleteRow(ConditionItem *row)
{
    QTreeWidgetItem *const item = row->parent();
    if (item != nullptr) {
        const int index = item->indexOfChild(row);
        delete item->takeChild(index);
        numberRows(item);
        m_tree->setCurrentItem(index < item->childCount() ? item->child(index) : item);
    } else if (row->childCount() > 0) {
        const std::unique_ptr<ConditionItem> next(lctrlsex::childOf(row, 0));
        row->removeChild(next.get());
        row->row = std::make_shared<ConditionRow>(lctrlsex::promoted(*next->row, *row->row));
        m_cells->remake(row);
        numberRows(row);
        m_tree->setCurrentItem(row);
    } else {
        const int index = m_tree->indexOfTopLevelItem(row);
        delete m_tree->takeTopLevelItem(index);
        m_tree->setCurrentItem(itemAt(qMin(index, m_tree->topLevelItemCount() - 1)));
    }
    m_clipboard->refresh();
    scheduleTrial();
}

void LConditionalStyling::numberRows(QTreeWidgetItem *item)
{
    item->setText(lctrlsex::SerialColumn, QStringLiteral("1"));
    for (int i = 0; i < item->childCount(); ++i) {
        item->child(i)->setText(lctrlsex::SerialColumn, QString::number(i + 2));
    }
}

void LConditionalStyling::updateAllSerialNumbers()
{
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        numberRows(m_tree->topLevelItem(i));
    }
}

void LConditionalStyling::onColorButtonClicked()
{
    const QPointer<lctrlsex::ColorButton> button = qobject_cast<lctrlsex::ColorButton *>(sender());
    if (!button) {
        return;
    }
    // On the heap and guarded: it goes with its parent, and so may the button.
    const QPointer<QColorDialog> chooser = new QColorDialog(button->color(), this);
    chooser->setWindowTitle(tr("Select Color"));
    const bool isAccepted = chooser->exec() == QDialog::Accepted;
    if (isAccepted && chooser && button) {
        button->setColor(chooser->selectedColor());
    }
    delete chooser;
}
