#pragma once

#include "operationvalue.h"

#include <vector>

namespace lctrlsex {

/** Most characters of one result; a longer one is none. */
constexpr int longestOperationText = 1 << 20;
/** Most elements of one list; a longer one is no result. */
constexpr int mostOperationElements = 1 << 16;
/** Most characters that the steps of one calculation read and write together. */
constexpr int mostOperationCharacters = 4 << 20;

/** Why a step has no result, or what should be known of the one it has. */
enum class OperationProblem : signed char {
    None,
    // There is no result:
    UnknownOperator,
    WrongArgumentCount,
    NotANumber,
    NotAnInteger,
    OutsideTheList,
    TextTooLong,
    ListTooLong,
    TooMuchWork,
    // An argument counts as nothing, with a result or without:
    CountIsZero,
    LaterStep,
    OwnStep,
    NoSuchStep,
    StepWithoutResult
};

/** What became of one step. */
struct OperationResult
{
    OperationValue value;
    OperationProblem problem = OperationProblem::None;
    /** The argument that the problem is about, from 0. */
    int argument = 0;
    /** The places of "decimal" were outside 0 to 6: see decimalRangeNotice(). */
    bool isPlacesClamped = false;
    /** Characters read and written by all the steps up to this one. */
    int characters = 0;
};

/** One result for each step. */
using OperationResults = std::vector<OperationResult>;

} // namespace lctrlsex
