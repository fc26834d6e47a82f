#include "lmodbusparameteroperation.h"

#include "configurationclipboard.h"
#include "configurationform.h"
#include "operationcells.h"
#include "operationitems.h"
#include "settingstatustips.h"
#include "treecells.h"

#include <QCursor>
#include <QDialogButtonBox>
#include <QEvent>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>

using namespace lctrlsex;

static constexpr QSize preferredSize(1200, 640);

void LModbusParameterOperation::build()
{
    setWindowTitle(tr("Conditional Operation"));
    const ConfigurationForm form(this,
                                 {tr("ConfigName"), tr("Result"), tr("Expression Name"),
                                  tr("Selection Operator"), tr("Expression"), tr("Operation")});
    m_tree = form.tree;
    m_buttons = form.buttonBox;
    m_cells = new OperationCells(m_tree, this);
    m_rows = new VisibleRows(m_tree, [this](QTreeWidgetItem *row) { m_cells->make(row); });
    m_items = new OperationItems(m_tree);
    m_clipboard = new ConfigurationClipboard(m_tree, m_items);
    m_tips = new SettingStatusTips(this);
    setEmptyHint(m_tree, tr("No configuration item yet. “Add configuration item” makes one."));
    m_clipboard->connectActions(this, {SLOT(OnCopySelectAction()), SLOT(OnCopyAllAction()),
                                       SLOT(OnPasteAction()), SLOT(OnCoverAction()),
                                       SLOT(OnDeleteAllAction())});
    connect(form.addButton, &QPushButton::clicked, this,
            &LModbusParameterOperation::onAddRootButtonClicked);
    connect(m_tree, &QTreeWidget::customContextMenuRequested, this,
            &LModbusParameterOperation::ShowContextMenu);
    connect(m_cells, &OperationCells::nameEdited, this, &LModbusParameterOperation::onNameEdited);
    connect(m_cells, &OperationCells::laidOut, m_rows, &VisibleRows::update);
    connect(m_cells, &OperationCells::placesClamped, this,
            [this] { m_tips->showTip(decimalRangeNotice()); });
    new RowFocus(m_tree, OperationColumn::Result);
    auto *remove = new QShortcut(QKeySequence::Delete, m_tree);
    remove->setContext(Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, this, &LModbusParameterOperation::removeSelected);
    showColors();
    setColumns(); // behind the style, which makes the headers wider
    fitToScreen(this, preferredSize);
}

void LModbusParameterOperation::setColumns()
{
    QHeaderView *header = m_tree->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(OperationColumn::Arguments, QHeaderView::Stretch);
    // By rows it would take those at the top to be as low as those at the bottom.
    m_tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_tree->setItemsExpandable(false); // nothing would show that there are steps
    m_tree->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_tree->setColumnWidth(OperationColumn::Name, 250);
    m_tree->setColumnWidth(OperationColumn::Result, 250);
    m_tree->setColumnWidth(OperationColumn::StepName, 150);
    m_tree->setColumnWidth(OperationColumn::Operator,
                           header->sectionSizeHint(OperationColumn::Operator));
    constexpr int buttonsWidth = 60;
    m_tree->setColumnWidth(OperationColumn::Buttons,
                           qMax(buttonsWidth, header->sectionSizeHint(OperationColumn::Buttons)));
    for (int column = 0; column < m_tree->columnCount(); ++column) {
        m_tree->headerItem()->setToolTip(column, m_tree->headerItem()->text(column));
    }
}

/** What is selected keeps the colours of its texts, which the cells paint themselves. */
void LModbusParameterOperation::showColors()
{
    QColor selected = palette().color(QPalette::Highlight);
    selected.setAlpha(60);
    m_tree->setStyleSheet(QStringLiteral("QTreeWidget { border: none; gridline-color: transparent; "
                                         "background: transparent; "
                                         "selection-background-color: %1; "
                                         "selection-color: palette(window-text); }")
                              .arg(selected.name(QColor::HexArgb)) +
                          QLatin1String(headerStyle));
}

void LModbusParameterOperation::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        showColors();
    }
}

bool LModbusParameterOperation::focusNextPrevChild(bool next)
{
    const auto make = [this](QTreeWidgetItem *row) {
        m_cells->make(row);
    };
    return tabThroughCells(m_tree, make, m_buttons->button(QDialogButtonBox::Ok), next) ||
           QDialog::focusNextPrevChild(next);
}

void LModbusParameterOperation::ShowContextMenu()
{
    const QRect shown = m_tree->viewport()->rect();
    const QPoint pointer = m_tree->viewport()->mapFromGlobal(QCursor::pos());
    const QPoint row = m_tree->visualItemRect(m_tree->currentItem()).center();
    m_clipboard->showMenu(shown.contains(pointer) ? pointer
                          : shown.contains(row)   ? row
                                                  : shown.center());
}

void LModbusParameterOperation::OnCopySelectAction()
{
    m_clipboard->copySelected();
}

void LModbusParameterOperation::OnCopyAllAction()
{
    m_clipboard->copyAll();
}

void LModbusParameterOperation::OnPasteAction()
{
    m_clipboard->paste();
}

void LModbusParameterOperation::OnCoverAction()
{
    m_clipboard->cover();
}

void LModbusParameterOperation::OnDeleteAllAction()
{
    m_clipboard->deleteAll();
}
