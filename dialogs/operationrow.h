#pragma once

#include "operationchain.h"
#include "uniquenames.h"

#include <QHash>

namespace lctrlsex {

/** The variables that arguments can name, made ready for looking them up. */
class OperationVariables
{
public:
    OperationVariables() = default;
    explicit OperationVariables(const QVector<CalculationVariable> &variables);

    [[nodiscard]] const QVector<CalculationVariable> &all() const { return m_all; }
    [[nodiscard]] bool contains(const QString &name) const { return m_keys.contains(name); }
    /** What stands for @p name: of two that are alike the later one counts. */
    [[nodiscard]] QString key(const QString &name) const { return m_keys.value(name); }

    /** What can be written as an argument of these @p steps: the variables, then the steps. */
    [[nodiscard]] QStringList words(const QVector<CalculationStep> &steps) const;

private:
    QVector<CalculationVariable> m_all;
    QHash<QString, QString> m_keys;
    QStringList m_words;
};

/** What became of a calculation when it was evaluated last. */
class OperationEvaluation
{
public:
    void evaluate(const CalculationCondition &calculation, const OperationVariables &variables);

    /** What the calculation publishes. */
    [[nodiscard]] QString published() const { return m_chain.published(m_results); }
    /** The result of @p step; empty, too, when it has none or there was no such step. */
    [[nodiscard]] QString text(int step) const;
    /** Why @p step has no result, or what should be known of it; empty when all is well. */
    [[nodiscard]] QString reason(int step) const;
    /** Whether the places of @p step were brought into their range. */
    [[nodiscard]] bool isPlacesClamped(int step) const;

private:
    [[nodiscard]] bool has(int step) const { return step >= 0 && step < int(m_results.size()); }

    OperationChain m_chain;
    QVector<QString> m_values;
    OperationResults m_results;
};

/** How many fields the editor of an operator has; that of an unknown one has two. */
[[nodiscard]] int fieldCount(const QString &func);

/** A new step for a calculation that has these @p steps. */
[[nodiscard]] CalculationStep newStep(const QVector<CalculationStep> &steps);

/** What an editor does when the text of its field @p index, from 0, is changed. */
void setArgument(CalculationStep *step, int index, const QString &text);

/**
 * What the operator box does, with the index of an operator. Arguments that have no field any more
 * are dropped; those that had none stay for an operator that takes any number.
 */
void setOperator(CalculationStep *step, int index);

} // namespace lctrlsex
