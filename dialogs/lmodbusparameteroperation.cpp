#include "lmodbusparameteroperation.h"

#include "configurationform.h"
#include "datasourceconfigmanager.h"
#include "messagebox.h"
#include "operationcells.h"
#include "operationitems.h"
#include "settingstatustips.h"
#include "treecells.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <QTreeWidget>
#include <QUuid>

using namespace lctrlsex;

namespace {

/** Under this name the widths of the columns are kept. */
QString settingsName()
{
    return QStringLiteral("LModbusParameterOperation");
}

} // namespace

LModbusParameterOperation::LModbusParameterOperation(QWidget *parent)
    : QDialog(parent)
{
    build();
    restoreColumnWidths(m_tree, settingsName());
}

LModbusParameterOperation::~LModbusParameterOperation()
{
    // While all of it is there: hiding moves the focus, which finishes edits and scrolls.
    delete m_rows;
    hide();
}

void LModbusParameterOperation::setDynamicData(const CalculationDynamicData &given)
{
    m_values = given.values;
    m_cells->setVariables(given.variables);
    m_items->load(given.conditions);
    m_rows->update();
}

CalculationDynamicData LModbusParameterOperation::dynamicData()
{
    CalculationDynamicData result;
    result.variables = m_cells->variables().all();
    result.values = m_values;
    m_formerIds.clear();
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        const CalculationRow *row = calculationRow(m_tree->topLevelItem(i));
        result.conditions.append(row->calculation());
        result.conditions.last().id = QUuid::createUuid().toString();
        if (row->formerId) {
            m_formerIds.insert(result.conditions.last().id, *row->formerId);
        }
    }
    return result;
}

void LModbusParameterOperation::setVariables(const QVector<CalculationVariable> &variables)
{
    m_cells->setVariables(variables);
    m_rows->update();
}

void LModbusParameterOperation::setClipboardData(const CalculationDynamicData &given)
{
    m_items->clipboard = given;
    m_clipboard->refresh();
}

bool LModbusParameterOperation::hasClipboardData() const
{
    return m_items->clipboardSize() > 0;
}

CalculationDynamicData LModbusParameterOperation::clipboardData() const
{
    return m_items->clipboard;
}

void LModbusParameterOperation::accept()
{
    // Enter and the keys of the button leave the focus where it is.
    CalculationRow *row = calculationRow(rowOfCell(m_tree, focusWidget()));
    const bool isName = row != nullptr && m_cells->nameEdit(row) == focusWidget();
    if (!isName || takeName(row)) {
        QDialog::accept();
    }
}

void LModbusParameterOperation::done(int result)
{
    saveColumnWidths(m_tree, settingsName());
    QDialog::done(result);
}

void LModbusParameterOperation::onAddRootButtonClicked()
{
    CalculationRow *row = m_items->addCalculation();
    reveal(row->child(0));
    editName(row);
}

void LModbusParameterOperation::onDeleteButtonClicked()
{
    removeRow(rowOfCell(m_tree, sender()));
}

void LModbusParameterOperation::onAddButtonClicked()
{
    addStep(calculationRow(rowOfCell(m_tree, sender())));
}

void LModbusParameterOperation::addStep(CalculationRow *calculation)
{
    if (calculation == nullptr) {
        return;
    }
    StepRow *step = m_items->addStep(calculation);
    calculation->setExpanded(true); // it had no step
    m_cells->stepsChanged(calculation);
    reveal(step);
    m_cells->firstField(step)->setFocus();
}

/** Rows above it that come into view become as high as their results and push it out again. */
void LModbusParameterOperation::reveal(QTreeWidgetItem *row)
{
    m_tree->scrollToItem(row);
    m_rows->update();
    m_tree->scrollToItem(row);
    m_cells->make(row);
}

void LModbusParameterOperation::removeRow(QTreeWidgetItem *row)
{
    if (row == nullptr) {
        return;
    }
    // What is being edited is taken over before it goes, not while it does.
    m_tree->setFocus();
    CalculationRow *calculation = row->parent() != nullptr ? calculationRow(row) : nullptr;
    lctrlsex::removeRow(row);
    if (calculation != nullptr) {
        m_cells->stepsChanged(calculation);
    }
}

void LModbusParameterOperation::removeSelected()
{
    // The steps of a calculation that goes have to go before it.
    const QList<QTreeWidgetItem *> selected = m_tree->selectedItems();
    for (const bool isStep : {true, false}) {
        for (QTreeWidgetItem *row : selected) {
            if ((row->parent() != nullptr) == isStep) {
                removeRow(row);
            }
        }
    }
}

void LModbusParameterOperation::editName(CalculationRow *calculation)
{
    if (calculation == nullptr) {
        return;
    }
    reveal(calculation);
    m_cells->nameEdit(calculation)->setFocus();
    m_cells->nameEdit(calculation)->selectAll();
}

void LModbusParameterOperation::onNameEdited(QTreeWidgetItem *item)
{
    if (m_tree->indexOfTopLevelItem(item) >= 0) {
        takeName(calculationRow(item));
    }
}

bool LModbusParameterOperation::takeName(CalculationRow *calculation)
{
    const QLineEdit *edit = m_cells->nameEdit(calculation);
    if (edit == nullptr || edit->text() == calculation->shownName) {
        return true;
    }
    const QString name = edit->text().trimmed();
    const bool isIllegal = DataSourceConfigManager::ContainsIllegalChars(name);
    const bool isTaken = m_items->isNameTaken(name, calculation);
    if (!name.isEmpty() && !isIllegal && !isTaken) {
        calculation->record.key = name;
    }
    m_cells->showName(calculation);
    if (isIllegal) {
        warn(tr("Name contains illegal characters."));
    } else if (isTaken && !name.isEmpty()) {
        warn(tr("Name already exists!"));
    }
    return !isIllegal && (!isTaken || name.isEmpty());
}

void LModbusParameterOperation::warn(const QString &text)
{
    // Not from within the edit that has just sent: the dialog may go while the box is open.
    QTimer::singleShot(
        0, this, [this, text] { showMessage(this, QMessageBox::Warning, tr("Warning"), text); });
}

void LModbusParameterOperation::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F2) {
        editName(calculationRow(m_tree->currentItem()));
    } else if (event->key() == Qt::Key_Insert) {
        addStep(calculationRow(m_tree->currentItem()));
    } else if (!isEnterInCell(event, m_tree)) {
        QDialog::keyPressEvent(event);
    }
}
