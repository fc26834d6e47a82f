#pragma once

#include "conditionexpression.h"
#include "patternsearch.h"

#include <optional>

namespace lctrlsex {

/** What a condition needs for texts and for its reasons, out of the way of comparing numbers. */
struct ConditionDetail
{
    /** As stored; empty when there is none. */
    QString text;
    /** For a regular expression its kind is a pattern, whatever the text looks like. */
    ConditionExpression expression;
    std::optional<PatternSearch> pattern;
    /** The pattern could be read as a comparison or an interval. */
    bool isAmbiguous = false;
    /** Why nothing holds: what stands for a number and is none. */
    std::optional<QString> nonNumber;
};

} // namespace lctrlsex
