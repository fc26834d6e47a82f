// A text as a condition of either type, asked for the value behind its first '|'.

#include "condition.h"
#include "inputtext.h"

#include <cstdlib>

using namespace lctrlsex;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = inputText(data, size);
    const ConditionValue value(text.section('|', 1));
    PatternBudget budget;
    for (int type : {0, 1}) {
        const Condition condition(SpanCondition{type, {text.section('|', 0, 0)}, {}, {}});
        const ConditionAnswer answer = condition.explain(value, &budget);
        // A pattern near the end of its time may be found once and not again.
        const bool isAgreed = answer.holds == condition.holds(value, &budget) ||
                              answer.explanation.contains("pattern");
        if (!isAgreed || answer.explanation.size() > 300 || (answer.holds && value.isNull())) {
            std::abort();
        }
    }
    return 0;
}
