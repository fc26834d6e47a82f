// The scanner of conditions against the patterns that state the grammar.

#include "conditionexpression.h"
#include "inputtext.h"

#include <QRegularExpression>

#include <cstdlib>

using namespace lctrlsex;

namespace {

/** By the patterns, of which the first that matches counts. */
ConditionExpression literally(const QString &text)
{
    static const QRegularExpression comparison("^(>|>=|<|<=|==|!=)\\s*(-?\\d*\\.?\\d*)$");
    static const QRegularExpression interval(
        "^([\\[\\(])\\s*(-?\\d*\\.?\\d*)?\\s*,\\s*(-?\\d*\\.?\\d*)?\\s*([\\]\\)])$");
    ConditionExpression result;
    if (const auto match = comparison.match(text); match.hasMatch()) {
        for (int i = 0; i < ConditionExpression::OperatorCount; ++i) {
            if (operatorText(ConditionExpression::Operator(i)) == match.capturedRef(1)) {
                result.comparison = ConditionExpression::Operator(i);
            }
        }
        result.start = match.captured(2);
    } else if (const auto ends = interval.match(text); ends.hasMatch()) {
        const int kind =
            QStringList{"()", "[]", "[)", "(]"}.indexOf(ends.captured(1) + ends.captured(4));
        result.kind = ConditionExpression::Kind(ConditionExpression::OpenInterval + kind);
        result.start = ends.captured(2);
        result.end = ends.captured(3);
    } else {
        result.kind = ConditionExpression::Pattern;
        result.start = text;
    }
    return result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = inputText(data, size);
    const ConditionExpression parsed = parseExpression(text);
    const ConditionExpression again = parseExpression(buildExpression(parsed));
    if (!(again == parsed) || (text.size() <= 256 && !(literally(text) == parsed))) {
        std::abort();
    }
    return 0;
}
