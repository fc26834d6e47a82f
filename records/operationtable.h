#pragma once

#include <QLatin1String>
#include <QString>

namespace lctrlsex {

/** The operators of a calculation; the numbers are the indexes of the operator box. */
enum class Operator : signed char {
    Unknown = -1,
    Add,
    Subtract,
    Multiply,
    Divide,
    Modulo,
    Left,
    Right,
    Mid,
    Split,
    Index,
    Join,
    Decimal
};

/** How many operators there are. */
constexpr int operatorCount = 12;

/** One row of the table of operators. */
struct OperatorEntry
{
    enum Rule { AtLeast, Exactly, Any };

    /** As it is shown and stored. */
    QLatin1String text;
    /** How many fields its editor has; what the rule counts with. */
    int arguments;
    /** How many arguments it takes. */
    Rule rule;
};

/** The entry of @p index, from 0 to operatorCount - 1. */
[[nodiscard]] const OperatorEntry &operatorEntry(int index);

/** The operator that is written exactly as @p text; Operator::Unknown when there is none. */
[[nodiscard]] Operator operatorOf(const QString &text);

/** Whether @p entry takes @p count arguments. */
[[nodiscard]] bool takesArguments(const OperatorEntry &entry, int count);

} // namespace lctrlsex
