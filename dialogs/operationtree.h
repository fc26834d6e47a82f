#pragma once

#include "operationrow.h"

#include <QTreeWidgetItem>

#include <optional>

namespace lctrlsex {

/** The columns of the tree in which calculations are edited. */
namespace OperationColumn {
enum Column { Name, Result, StepName, Operator, Arguments, Buttons };
}

/** A step of a calculation. It holds the step as it stands; the cells only show it. */
class StepRow : public QTreeWidgetItem
{
public:
    static constexpr int Type = QTreeWidgetItem::UserType + 2;

    explicit StepRow(const CalculationStep &given);

    CalculationStep step;
    /** Its arguments were edited and nothing was told of that yet. */
    bool isTouched = false;
};

/** A calculation, with its steps as children. It holds everything but these. */
class CalculationRow : public QTreeWidgetItem
{
public:
    static constexpr int Type = QTreeWidgetItem::UserType + 1;

    explicit CalculationRow(const CalculationCondition &given);

    /** The calculation as it stands, with its steps. */
    [[nodiscard]] CalculationCondition calculation() const;

    /** Without its steps. */
    CalculationCondition record;
    /** The name as its edit shows it, which may be unable to show all of it. */
    QString shownName;
    /** The identifier that it was loaded with; nothing for one made or pasted since. */
    std::optional<QString> formerId;
    OperationEvaluation evaluation;
    /** False while the evaluation is not that of what stands here. */
    bool isEvaluated = false;
};

/** @p row as a step; null when it is none. */
[[nodiscard]] StepRow *stepRow(QTreeWidgetItem *row);
/** The calculation that @p row is or belongs to; null for a null row. */
[[nodiscard]] CalculationRow *calculationRow(QTreeWidgetItem *row);

/** Removes @p row, a calculation with its steps. Its cells may still send while that happens. */
void removeRow(QTreeWidgetItem *row);

} // namespace lctrlsex
