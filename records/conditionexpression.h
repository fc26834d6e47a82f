#pragma once

#include <QString>

namespace lctrlsex {

/**
 * A condition's expression as its editors show it; the text is what is stored.
 *
 *     >=12   (a,b)   [a,b]   [a,b)   (a,b]   or else a regular expression
 *
 * Numbers are kept as text, as typed: what stands in an edit may be empty, "-" or "5.".
 */
struct ConditionExpression
{
    /** In the order in which they are offered. */
    enum Kind {
        Comparison,
        OpenInterval,
        ClosedInterval,
        ClosedOpenInterval,
        OpenClosedInterval,
        Pattern
    };
    /** In the order in which they are offered. */
    enum Operator { Greater, Less, GreaterOrEqual, LessOrEqual, Equal, NotEqual };
    static constexpr int KindCount = Pattern + 1;
    static constexpr int OperatorCount = NotEqual + 1;

    Kind kind = Comparison;
    /** Of a comparison; the first one otherwise. */
    Operator comparison = Greater;
    /** The number compared with, where an interval starts, or the whole pattern. */
    QString start;
    /** Where an interval ends; empty otherwise. */
    QString end;
    /** Parsing never clears it. */
    bool isValid = true;
};

[[nodiscard]] bool operator==(const ConditionExpression &left, const ConditionExpression &right);

/** The operator as it is written, such as ">=". */
[[nodiscard]] QString operatorText(ConditionExpression::Operator comparison);

/** The text of @p expression; empty only for an empty pattern, which is not stored. */
[[nodiscard]] QString buildExpression(const ConditionExpression &expression);

/**
 * What @p text says, in linear time. A number may be incomplete or missing and stand among blanks,
 * digits are those of ASCII, and one line feed may end the text. Everything else is a pattern;
 * a pattern that looks like a comparison or an interval comes back as one.
 */
[[nodiscard]] ConditionExpression parseExpression(const QString &text);

} // namespace lctrlsex
