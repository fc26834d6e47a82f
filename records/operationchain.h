#pragma once

#include "operationprogram.h"

namespace lctrlsex {

/**
 * A calculation made ready for being evaluated over many values: the one that the dialog shows,
 * that a check reports on and that pages are made with.
 *
 * Arguments are read as follows: a leading "${" and a trailing "}" are dropped; the name of a
 * variable stands for its value; what begins with "var" stands for the result of the last step of
 * that name before this one, and for nothing when there is none; anything else is itself. The
 * counts and positions of "left", "right", "mid" and "index" never come from a step.
 *
 * Const members may be called from several threads at once. Texts of reasons are in the language of
 * the moment.
 */
class OperationChain
{
public:
    OperationChain() = default;
    /**
     * @p variables are the names of the values that evaluate() gets, in their order. Of two that
     * are alike the later one counts.
     */
    OperationChain(const CalculationCondition &calculation, const QVector<QString> &variables);

    [[nodiscard]] int stepCount() const { return int(m_steps.size()); }

    /** Evaluates every step; missing @p values are empty. Reuse @p results for many rows. */
    void evaluate(const QVector<QString> &values, OperationResults *results) const;
    /**
     * Evaluates step @p index alone, from 0 to stepCount() - 1, with the @p results of those before
     * it, as evaluate() does. The steps behind it keep what they have.
     */
    void evaluateStep(int index, const QVector<QString> &values, OperationResults *results) const;

    /** What the calculation publishes: the text of its last step, its default without one. */
    [[nodiscard]] QString published(const OperationResults &results) const;

    /**
     * Why step @p index has no result, or what should be known of it, as a plain text for users;
     * empty when all is well. @p values and @p results are those of its evaluation.
     */
    [[nodiscard]] QString reason(int index, const QVector<QString> &values,
                                 const OperationResults &results) const;

private:
    std::vector<OperationStep> m_steps;
    QString m_defaultValue;
};

/** What to tell when places were clamped to 0 to 6. */
[[nodiscard]] QString decimalRangeNotice();

} // namespace lctrlsex
