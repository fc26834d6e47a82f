// The scanner of conditions against the patterns that state the grammar; what is asked is answered.

#include "condition.h"
#include "conditionexpression.h"

#include <QRegularExpression>

#include <cstdlib>
#include <cstring>

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

/** The text in front of the first '|' as a condition, of either type, on what is behind it. */
void ask(const QString &text)
{
    const ConditionValue value(text.section('|', 1));
    PatternBudget budget;
    for (int type : {0, 1}) {
        const Condition condition({type, {text.section('|', 0, 0)}, {}, {}});
        const ConditionAnswer answer = condition.explain(value, &budget);
        // A pattern near the end of its time may be found once and not again.
        const bool isAgreed = answer.holds == condition.holds(value, &budget) ||
                              answer.explanation.contains("pattern");
        if (!isAgreed || answer.explanation.size() > 300 || (answer.holds && value.isNull())) {
            std::abort();
        }
    }
}

/** UTF-16 behind a 'w', so that every code unit can come; UTF-8 otherwise. */
QString textOf(const uint8_t *data, size_t size)
{
    if (size == 0 || data[0] != 'w') {
        return QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    }
    QString text(int(size - 1) / 2, Qt::Uninitialized);
    std::memcpy(text.data(), data + 1, size_t(text.size()) * sizeof(QChar));
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = textOf(data, size);
    const ConditionExpression parsed = parseExpression(text);
    const ConditionExpression again = parseExpression(buildExpression(parsed));
    if (!(again == parsed) || (text.size() <= 256 && !(literally(text) == parsed))) {
        std::abort();
    }
    if (text.contains('|')) {
        ask(text);
    }
    return 0;
}
