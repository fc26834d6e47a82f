#include "conditionexpression.h"

#include <QStringView>

#include <tuple>

namespace lctrlsex {

namespace {

/** Reads from front to back; every answer moves on only when it is yes. */
class Scanner
{
public:
    explicit Scanner(QStringView text)
        : m_text(text)
    {}

    /** One of @p characters, or 0. */
    char oneOf(const char *characters)
    {
        for (; *characters != '\0'; ++characters) {
            if (at(m_position) == QLatin1Char(*characters)) {
                ++m_position;
                return *characters;
            }
        }
        return '\0';
    }

    void skipBlanks()
    {
        while (oneOf(" \t\n\v\f\r") != '\0') {
        }
    }

    /** As much of "-12.5" as there is, and possibly nothing. */
    QString number()
    {
        const qsizetype start = m_position;
        oneOf("-");
        skipDigits();
        oneOf(".");
        skipDigits();
        return m_text.mid(start, m_position - start).toString();
    }

    /** Nothing is left but at most one line feed. */
    [[nodiscard]] bool isAtEnd() const
    {
        return m_position == m_text.size() ||
               (m_position == m_text.size() - 1 && m_text.back() == QLatin1Char('\n'));
    }

private:
    [[nodiscard]] QChar at(qsizetype position) const
    {
        return position < m_text.size() ? m_text.at(position) : QChar();
    }

    void skipDigits()
    {
        while (at(m_position) >= QLatin1Char('0') && at(m_position) <= QLatin1Char('9')) {
            ++m_position;
        }
    }

    QStringView m_text;
    qsizetype m_position = 0;
};

bool readComparison(Scanner scanner, ConditionExpression *expression)
{
    const char first = scanner.oneOf("><=!");
    const bool withEqual = scanner.oneOf("=") != '\0';
    switch (first) {
    case '>':
        expression->comparison =
            withEqual ? ConditionExpression::GreaterOrEqual : ConditionExpression::Greater;
        break;
    case '<':
        expression->comparison =
            withEqual ? ConditionExpression::LessOrEqual : ConditionExpression::Less;
        break;
    default:
        if (first == '\0' || !withEqual) {
            return false;
        }
        expression->comparison =
            first == '=' ? ConditionExpression::Equal : ConditionExpression::NotEqual;
    }
    scanner.skipBlanks();
    expression->start = scanner.number();
    expression->kind = ConditionExpression::Comparison;
    return scanner.isAtEnd();
}

bool readInterval(Scanner scanner, ConditionExpression *expression)
{
    const char opening = scanner.oneOf("[(");
    scanner.skipBlanks();
    expression->start = scanner.number();
    scanner.skipBlanks();
    if (opening == '\0' || scanner.oneOf(",") == '\0') {
        return false;
    }
    scanner.skipBlanks();
    expression->end = scanner.number();
    scanner.skipBlanks();
    const char closing = scanner.oneOf("])");
    if (opening == '(') {
        expression->kind = closing == ')' ? ConditionExpression::OpenInterval
                                          : ConditionExpression::OpenClosedInterval;
    } else {
        expression->kind = closing == ']' ? ConditionExpression::ClosedInterval
                                          : ConditionExpression::ClosedOpenInterval;
    }
    return closing != '\0' && scanner.isAtEnd();
}

} // namespace

bool operator==(const ConditionExpression &left, const ConditionExpression &right)
{
    return std::tie(left.kind, left.comparison, left.start, left.end, left.isValid) ==
           std::tie(right.kind, right.comparison, right.start, right.end, right.isValid);
}

QString operatorText(ConditionExpression::Operator comparison)
{
    static constexpr const char *Texts[] = {">", "<", ">=", "<=", "==", "!="};
    return QLatin1String(Texts[comparison]);
}

QString buildExpression(const ConditionExpression &expression)
{
    const auto interval = [&expression](char opening, char closing) {
        return QLatin1Char(opening) + expression.start + QLatin1Char(',') + expression.end +
               QLatin1Char(closing);
    };
    switch (expression.kind) {
    case ConditionExpression::Comparison:
        return operatorText(expression.comparison) + expression.start;
    case ConditionExpression::OpenInterval:
        return interval('(', ')');
    case ConditionExpression::ClosedInterval:
        return interval('[', ']');
    case ConditionExpression::ClosedOpenInterval:
        return interval('[', ')');
    case ConditionExpression::OpenClosedInterval:
        return interval('(', ']');
    case ConditionExpression::Pattern:
        break;
    }
    return expression.start;
}

ConditionExpression parseExpression(const QString &text)
{
    ConditionExpression comparison;
    if (readComparison(Scanner(text), &comparison)) {
        return comparison;
    }
    ConditionExpression interval;
    if (readInterval(Scanner(text), &interval)) {
        return interval;
    }
    ConditionExpression pattern;
    pattern.kind = ConditionExpression::Pattern;
    pattern.start = text;
    return pattern;
}

} // namespace lctrlsex
