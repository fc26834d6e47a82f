#include "conditiontrial.h"

namespace lctrlsex {

ConditionTrial tryConditions(const QVector<SpanCondition> &conditions, const ConditionValue &value,
                             PatternBudget *budget)
{
    ConditionTrial trial;
    trial.answers.reserve(conditions.size());
    for (int i = 0; i < conditions.size(); ++i) {
        trial.answers.append(Condition(conditions.at(i)).explain(value, budget));
        if (trial.winner < 0 && trial.answers.last().holds) {
            trial.winner = i;
        }
    }
    return trial;
}

} // namespace lctrlsex
