#include "condition.h"

#include "conditiondetail.h"

#include <algorithm>
#include <cmath>

namespace lctrlsex {

namespace {

constexpr int RegularExpressionType = 1;
constexpr double Infinity = std::numeric_limits<double>::infinity();

/** Not a number for a text. */
double numberOf(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? number : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

ConditionValue::ConditionValue(const QString &text)
    : m_text(text)
    , m_number(numberOf(text))
{}

Condition::Condition(const SpanCondition &stored)
{
    const auto detail = std::make_shared<ConditionDetail>();
    m_detail = detail;
    detail->text = stored.expression.value(0);
    if (detail->text.isEmpty()) {
        return;
    }
    ConditionExpression &expression = detail->expression;
    expression = parseExpression(detail->text);
    const bool looksLikePattern = expression.kind == ConditionExpression::Pattern;
    if (looksLikePattern || stored.type == RegularExpressionType) {
        detail->isAmbiguous = !looksLikePattern;
        expression.kind = ConditionExpression::Pattern;
        detail->pattern.emplace(detail->text);
        m_isText = true;
    } else if (expression.kind == ConditionExpression::Comparison) {
        setComparison(detail.get());
    } else {
        setInterval(detail.get());
    }
}

void Condition::setComparison(ConditionDetail *detail)
{
    const double operand = numberOf(detail->expression.start);
    const auto comparison = detail->expression.comparison;
    const bool isEquality =
        comparison == ConditionExpression::Equal || comparison == ConditionExpression::NotEqual;
    m_isNegated = comparison == ConditionExpression::NotEqual;
    if (std::isnan(operand)) {
        m_isText = isEquality;
        if (!isEquality) {
            detail->nonNumber = detail->expression.start;
        }
        return;
    }
    // Between two neighbouring doubles there is nothing, so that every order is a closed range.
    m_lowest = operand;
    m_highest = operand;
    if (comparison == ConditionExpression::Greater) {
        m_lowest = std::nextafter(operand, Infinity);
    } else if (comparison == ConditionExpression::Less) {
        m_highest = std::nextafter(operand, -Infinity);
    }
    if (comparison == ConditionExpression::Greater ||
        comparison == ConditionExpression::GreaterOrEqual) {
        m_highest = Infinity;
    } else if (!isEquality) {
        m_lowest = -Infinity;
    }
}

void Condition::setInterval(ConditionDetail *detail)
{
    const ConditionExpression &expression = detail->expression;
    const double start = numberOf(expression.start);
    const double end = numberOf(expression.end);
    if (std::isnan(start) && !expression.start.isEmpty()) {
        detail->nonNumber = expression.start;
        return;
    }
    if (std::isnan(end) && !expression.end.isEmpty()) {
        detail->nonNumber = expression.end;
        return;
    }
    const bool isStartClosed = expression.kind == ConditionExpression::ClosedInterval ||
                               expression.kind == ConditionExpression::ClosedOpenInterval;
    const bool isEndClosed = expression.kind == ConditionExpression::ClosedInterval ||
                             expression.kind == ConditionExpression::OpenClosedInterval;
    m_lowest = std::isnan(start) ? -Infinity
               : isStartClosed   ? start
                                 : std::nextafter(start, Infinity);
    m_highest = std::isnan(end) ? Infinity : isEndClosed ? end : std::nextafter(end, -Infinity);
}

bool Condition::holds(const ConditionValue &value, PatternBudget *budget) const
{
    if (value.isNull()) {
        return false;
    }
    // A text is within nothing, and so it differs from any number.
    return m_isText ? holdsText(value, budget) : holdsNumber(value.number());
}

bool Condition::holdsText(const ConditionValue &value, PatternBudget *budget) const
{
    if (m_detail->pattern) {
        return m_detail->pattern->search(value.text(), budget) == PatternSearch::Found;
    }
    return (value.text().trimmed() == m_detail->expression.start) != m_isNegated;
}

int firstHolding(const QVector<Condition> &conditions, const ConditionValue &value,
                 PatternBudget *budget)
{
    const auto first = std::find_if(
        conditions.begin(), conditions.end(),
        [&value, budget](const Condition &condition) { return condition.holds(value, budget); });
    return first == conditions.end() ? -1 : int(first - conditions.begin());
}

} // namespace lctrlsex
