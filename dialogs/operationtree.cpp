#include "operationtree.h"

#include <QTreeWidget>

namespace lctrlsex {

StepRow::StepRow(const CalculationStep &given)
    : QTreeWidgetItem(Type)
    , step(given)
{}

CalculationRow::CalculationRow(const CalculationCondition &given)
    : QTreeWidgetItem(Type)
    , record(given)
{
    record.expressions.clear();
    QList<QTreeWidgetItem *> steps;
    for (const CalculationStep &step : given.expressions) {
        steps.append(new StepRow(step));
    }
    addChildren(steps);
}

CalculationCondition CalculationRow::calculation() const
{
    CalculationCondition whole = record;
    whole.expressions.reserve(childCount());
    for (int i = 0; i < childCount(); ++i) {
        whole.expressions.append(stepRow(child(i))->step);
    }
    return whole;
}

StepRow *stepRow(QTreeWidgetItem *row)
{
    return row != nullptr && row->type() == StepRow::Type ? static_cast<StepRow *>(row) : nullptr;
}

CalculationRow *calculationRow(QTreeWidgetItem *row)
{
    QTreeWidgetItem *top = row != nullptr && row->parent() != nullptr ? row->parent() : row;
    return static_cast<CalculationRow *>(top);
}

void removeRow(QTreeWidgetItem *row)
{
    // Taken out first: a row that is deleted within the tree is no longer whole when cells that
    // lose the focus ask for it.
    if (QTreeWidgetItem *parent = row->parent()) {
        parent->removeChild(row);
    } else if (QTreeWidget *tree = row->treeWidget()) {
        tree->takeTopLevelItem(tree->indexOfTopLevelItem(row));
    }
    delete row;
}

} // namespace lctrlsex
