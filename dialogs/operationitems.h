#pragma once

#include "configurationclipboard.h"
#include "operationtree.h"

class QTreeWidget;

namespace lctrlsex {

/** The calculations in a tree and in the clipboard beside it. */
class OperationItems : public QObject, public ConfigurationItems
{
    Q_DECLARE_TR_FUNCTIONS(OperationItems)

public:
    /** Belongs to @p tree. */
    explicit OperationItems(QTreeWidget *tree);

    /** Replaces what is in the tree. */
    void load(const QVector<CalculationCondition> &calculations);
    /** Appends a calculation with one step, under a name of its own. */
    CalculationRow *addCalculation();
    /** Appends a step to @p calculation. */
    StepRow *addStep(CalculationRow *calculation);
    /** Whether another calculation than @p row has this name. */
    [[nodiscard]] bool isNameTaken(const QString &name, const CalculationRow *row) const;

    /** What the clipboard holds. */
    CalculationDynamicData clipboard;

    [[nodiscard]] int clipboardSize() const override { return clipboard.conditions.size(); }
    void copyRows(const QVector<int> &rows) override;
    [[nodiscard]] bool appendClipboard() override;
    void coverWithClipboard() override;

private:
    Q_DISABLE_COPY(OperationItems)

    [[nodiscard]] CalculationRow *at(int index) const;
    [[nodiscard]] UniqueNames names() const;
    void append(const QList<CalculationRow *> &rows);
    /** Appends copies of the clipboard under names that are free. */
    void appendCopies();

    QTreeWidget *m_tree;
};

} // namespace lctrlsex
