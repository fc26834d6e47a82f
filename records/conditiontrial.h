#pragma once

#include "condition.h"

namespace lctrlsex {

/** What becomes of a value among the conditions of one item, and why. */
struct ConditionTrial
{
    /** The condition whose style is applied: the first that holds; -1 for none. */
    int winner = -1;
    /** Whether each condition holds, with its reason. */
    QVector<ConditionAnswer> answers;
};

/** Puts @p value to @p conditions as pages are made, within @p budget. */
[[nodiscard]] ConditionTrial tryConditions(const QVector<SpanCondition> &conditions,
                                           const ConditionValue &value, PatternBudget *budget);

} // namespace lctrlsex
