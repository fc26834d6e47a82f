#include "operationprogram.h"

#include "operationnumber.h"

#include <QHash>
#include <QSet>

namespace lctrlsex {

namespace {

/** The steps and variables that names stand for while a calculation is compiled. */
struct OperationNames
{
    QHash<QString, int> variables;
    /** The last step of a name so far. */
    QHash<QString, int> earlier;
    /** The names of all steps. */
    QSet<QString> steps;
};

OperationProblem flawOf(const QString &name, const QString &own, const OperationNames &names)
{
    if (name == own) {
        return OperationProblem::OwnStep;
    }
    return names.steps.contains(name) ? OperationProblem::LaterStep : OperationProblem::NoSuchStep;
}

OperationArgument compileArgument(const QString &text, const QString &step,
                                  const OperationNames &names)
{
    OperationArgument argument;
    argument.written = argumentName(text);
    argument.index = names.variables.value(argument.written, -1);
    if (argument.index >= 0) {
        // Kept on purpose because values are data: one that begins with "var" names no step.
        argument.kind = OperationArgument::Variable;
        return argument;
    }
    argument.integer = integerOf(argument.written);
    // Kept on purpose: "index" finds lists under any name, other operators only under "var...".
    argument.listStep = names.earlier.value(argument.written, -1);
    if (!argument.written.startsWith(QLatin1String("var"))) {
        argument.number = numberOf(argument.written);
        return argument;
    }
    argument.index = argument.listStep;
    argument.kind = argument.index >= 0 ? OperationArgument::Step : OperationArgument::Absent;
    if (argument.kind == OperationArgument::Absent) {
        argument.flaw = flawOf(argument.written, step, names);
    }
    return argument;
}

OperationStep compileStep(const CalculationStep &given, const OperationNames &names)
{
    OperationStep step;
    step.name = given.variableName;
    step.func = given.expression.func;
    step.operation = operatorOf(step.func);
    step.arguments.reserve(size_t(given.expression.args.size()));
    for (const QString &text : given.expression.args) {
        step.arguments.push_back(compileArgument(text, step.name, names));
    }
    step.hasArguments =
        step.operation != Operator::Unknown &&
        takesArguments(operatorEntry(int(step.operation)), given.expression.args.size());
    return step;
}

} // namespace

QString argumentName(QString text)
{
    if (text.endsWith(QLatin1Char('}'))) {
        text.chop(1);
    } else if (text.endsWith(QLatin1String("}\n"))) { // where the pattern's "$" holds too
        text.remove(text.size() - 2, 1);
    }
    if (text.startsWith(QLatin1String("${"))) {
        text.remove(0, 2);
    }
    return text;
}

std::optional<int> integerOf(const QString &text)
{
    bool isInteger = false;
    const int integer = text.toInt(&isInteger);
    return isInteger ? std::optional<int>(integer) : std::nullopt;
}

std::vector<OperationStep> compileSteps(const CalculationCondition &calculation,
                                        const QVector<QString> &variables)
{
    OperationNames names;
    for (int i = 0; i < variables.size(); ++i) {
        names.variables.insert(variables.at(i), i);
    }
    for (const CalculationStep &step : calculation.expressions) {
        names.steps.insert(step.variableName);
    }
    std::vector<OperationStep> steps;
    steps.reserve(size_t(calculation.expressions.size()));
    for (const CalculationStep &given : calculation.expressions) {
        steps.push_back(compileStep(given, names));
        names.earlier.insert(given.variableName, int(steps.size()) - 1);
    }
    return steps;
}

} // namespace lctrlsex
