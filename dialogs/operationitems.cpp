#include "operationitems.h"

#include <QTreeWidget>
#include <QUuid>

namespace lctrlsex {

OperationItems::OperationItems(QTreeWidget *tree)
    : QObject(tree)
    , m_tree(tree)
{}

CalculationRow *OperationItems::at(int index) const
{
    return calculationRow(m_tree->topLevelItem(index));
}

UniqueNames OperationItems::names() const
{
    UniqueNames names;
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        names.take(at(i)->record.key);
    }
    return names;
}

bool OperationItems::isNameTaken(const QString &name, const CalculationRow *row) const
{
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        if (at(i) != row && at(i)->record.key == name) {
            return true;
        }
    }
    return false;
}

void OperationItems::append(const QList<CalculationRow *> &rows)
{
    QList<QTreeWidgetItem *> items;
    for (CalculationRow *row : rows) {
        items.append(row);
    }
    m_tree->addTopLevelItems(items);
    // One by one only where it is one: each is laid out by itself.
    if (rows.size() == 1) {
        rows.first()->setExpanded(true);
    } else {
        m_tree->expandAll();
    }
}

void OperationItems::load(const QVector<CalculationCondition> &calculations)
{
    m_tree->clear();
    QList<CalculationRow *> rows;
    for (const CalculationCondition &calculation : calculations) {
        rows.append(new CalculationRow(calculation));
        rows.last()->formerId = calculation.id;
    }
    append(rows);
}

CalculationRow *OperationItems::addCalculation()
{
    CalculationCondition calculation;
    calculation.key = names().makeUnique(tr("Configuration item"));
    calculation.expressions.append(newStep({}));
    auto *row = new CalculationRow(calculation);
    append({row});
    return row;
}

StepRow *OperationItems::addStep(CalculationRow *calculation)
{
    auto *row = new StepRow(newStep(calculation->calculation().expressions));
    calculation->addChild(row);
    return row;
}

void OperationItems::copyRows(const QVector<int> &rows)
{
    clipboard.conditions.clear();
    for (const int row : rows) {
        clipboard.conditions.append(at(row)->calculation());
        clipboard.conditions.last().id = QUuid::createUuid().toString();
    }
}

void OperationItems::appendCopies()
{
    UniqueNames taken = names();
    QList<CalculationRow *> rows;
    for (const CalculationCondition &calculation : qAsConst(clipboard.conditions)) {
        rows.append(new CalculationRow(calculation));
        rows.last()->record.key = taken.makeUnique(
            calculation.key.isEmpty() ? tr("Configuration item") : calculation.key);
    }
    append(rows);
}

bool OperationItems::appendClipboard()
{
    appendCopies();
    return clipboardSize() > 0; // it may have been emptied while the user was asked
}

void OperationItems::coverWithClipboard()
{
    if (clipboardSize() > 0) {
        m_tree->clear();
        appendCopies();
    }
}

} // namespace lctrlsex
