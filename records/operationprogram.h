#pragma once

#include "dynamicdata.h"
#include "operationresult.h"
#include "operationtable.h"

#include <optional>
#include <vector>

namespace lctrlsex {

/** An argument of a step, with all that is known of it before there are values. */
struct OperationArgument
{
    enum Kind : signed char { Literal, Variable, Step, Absent };

    Kind kind = Literal;
    /** Why an absent argument has no text. */
    OperationProblem flaw = OperationProblem::None;
    /** Of the variable, or of the step that comes before. */
    int index = -1;
    /** The step before whose list the argument names for "index"; -1 when it names none. */
    int listStep = -1;
    /** The text as written, without "${" and "}". */
    QString written;
    /** What a literal is as a number. */
    std::optional<double> number;
    /** What everything but a variable is as a count or a position. */
    std::optional<int> integer;
};

/** A step of a calculation, ready to be evaluated. */
struct OperationStep
{
    QString name;
    Operator operation = Operator::Unknown;
    /** The operator as written. */
    QString func;
    /** False when the operator does not take that many arguments. */
    bool hasArguments = false;
    std::vector<OperationArgument> arguments;
};

/** What an argument is once a leading "${" and a trailing "}" are dropped. */
[[nodiscard]] QString argumentName(QString text);

/** The steps of @p calculation; @p variables are the names of the values that will be given. */
[[nodiscard]] std::vector<OperationStep> compileSteps(const CalculationCondition &calculation,
                                                      const QVector<QString> &variables);

/** Evaluates step @p index of @p steps after those before it, whose results it reads. */
void evaluateOperation(const std::vector<OperationStep> &steps, int index,
                       const QVector<QString> &values, OperationResults *results);

/** The text of @p argument among @p values and @p results; empty for an absent one. */
[[nodiscard]] QString argumentText(const OperationArgument &argument,
                                   const QVector<QString> &values, const OperationResults &results);

/** What @p argument is as a count or a position, which may not come from a step. */
[[nodiscard]] std::optional<int> argumentInteger(const OperationArgument &argument,
                                                 const QVector<QString> &values);

/** What QString::toInt() makes of @p text; nothing where it fails. */
[[nodiscard]] std::optional<int> integerOf(const QString &text);

} // namespace lctrlsex
