#pragma once

#include "dynamicdata.h"
#include "patternsearch.h"

#include <QString>
#include <QVector>

#include <limits>
#include <memory>

namespace lctrlsex {

struct ConditionDetail;

/**
 * A field's value, read once and then put to many conditions. Null stands for a field without a
 * value; an empty text is a value.
 *
 * A number is written as in C, with blanks around it or none: "12", " -.5e3 ". Words such as "nan"
 * and "inf", and numbers that are too large or too small for a double, are texts.
 */
class ConditionValue
{
public:
    explicit ConditionValue(const QString &text);

    [[nodiscard]] bool isNull() const { return m_text.isNull(); }
    [[nodiscard]] bool isNumber() const { return m_number == m_number; }
    /** Not a number for a text. */
    [[nodiscard]] double number() const { return m_number; }
    [[nodiscard]] const QString &text() const { return m_text; }

private:
    QString m_text;
    double m_number;
};

/** An answer, and why in words for who operates the signs. */
struct ConditionAnswer
{
    bool holds = false;
    /** One line that quotes at most some 60 characters of the value and of the condition each. */
    QString explanation;
};

/**
 * A stored condition, compiled once and then asked often; it never changes, so that several threads
 * may ask it at once.
 *
 * - A condition stored as a regular expression is searched for as one, although its text may look
 *   like a comparison (the dialog shows it as a comparison then, and stores it as one when it is
 *   accepted). For any other type the text says what it is.
 * - Numbers are compared as numbers. A text meets no interval and no order; "==" and "!=" compare
 *   texts, without blanks around them, where either side is no number: "==" alone finds an empty
 *   value, "!=" alone any other.
 * - A missing end of an interval is open: any number lies in "(,)". An order without a number, and
 *   an interval with an end such as "-" that is none, hold for nothing.
 * - Null meets nothing, and a condition without a text holds for nothing.
 */
class Condition
{
public:
    /** Of several texts the first one counts. */
    explicit Condition(const SpanCondition &stored);

    /** For patterns, @p budget is what the refresh has left. */
    [[nodiscard]] bool holds(const ConditionValue &value, PatternBudget *budget = nullptr) const;
    [[nodiscard]] bool holds(const QString &value) const { return holds(ConditionValue(value)); }

    /** The same answer as holds(), with the reason. */
    [[nodiscard]] ConditionAnswer explain(const ConditionValue &value,
                                          PatternBudget *budget = nullptr) const;

    /** Why it holds for no value at all, in words as above; empty when there may be one. */
    [[nodiscard]] QString flaw() const;

private:
    void setComparison(ConditionDetail *detail);
    void setInterval(ConditionDetail *detail);
    /** Without a branch, because nobody can guess where a number lies. */
    [[nodiscard]] bool holdsNumber(double number) const
    {
        const int isWithin = int(m_lowest <= number) & int(number <= m_highest);
        return (isWithin ^ int(m_isNegated)) != 0;
    }
    [[nodiscard]] bool holdsText(const ConditionValue &value, PatternBudget *budget) const;

    // What a number is put to: within these or, negated, not; holds for nothing to begin with.
    double m_lowest = std::numeric_limits<double>::infinity();
    double m_highest = -std::numeric_limits<double>::infinity();
    bool m_isNegated = false;
    /** A pattern, or a text that a value is to equal. */
    bool m_isText = false;
    std::shared_ptr<const ConditionDetail> m_detail;
};

/** Index of the first of @p conditions that holds, -1 when none does. */
[[nodiscard]] int firstHolding(const QVector<Condition> &conditions, const ConditionValue &value,
                               PatternBudget *budget = nullptr);

} // namespace lctrlsex
