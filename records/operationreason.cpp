#include "operationchain.h"
#include "shorttext.h"

#include <QCoreApplication>

namespace lctrlsex {

namespace {

/** Texts of this file, under one name for translators. */
struct OperationTexts
{
    Q_DECLARE_TR_FUNCTIONS(Operation)
};

QString shown(const QString &text)
{
    return shortText(text, 40);
}

/** A reason that tells of an argument; its text is %3. */
QString argumentReason(OperationProblem problem)
{
    switch (problem) {
    case OperationProblem::NotANumber:
        return OperationTexts::tr("%1: argument %2, \"%3\", is not a number.");
    case OperationProblem::NotAnInteger:
        return OperationTexts::tr(
            "%1: argument %2, \"%3\", is not a whole number or is too large.");
    case OperationProblem::CountIsZero:
        return OperationTexts::tr(
            "%1: argument %2, \"%3\", is not a whole number or is too large; it counts as 0.");
    case OperationProblem::LaterStep:
        return OperationTexts::tr("%1: argument %2 is empty, because %3 is computed later.");
    case OperationProblem::OwnStep:
        return OperationTexts::tr("%1: argument %2 is empty, because %3 refers to itself.");
    case OperationProblem::NoSuchStep:
        return OperationTexts::tr("%1: argument %2 is empty, because there is no step %3.");
    case OperationProblem::StepWithoutResult:
        return OperationTexts::tr("%1: argument %2 is empty, because %3 has no result.");
    default:
        return {};
    }
}

/** What an argument's reason quotes: its value, or the name of what it refers to. */
QString quoted(const OperationArgument &argument, OperationProblem problem,
               const QVector<QString> &values, const OperationResults &results)
{
    const bool isValue =
        problem == OperationProblem::NotANumber || problem == OperationProblem::NotAnInteger ||
        (problem == OperationProblem::CountIsZero && argument.kind == OperationArgument::Variable);
    return shown(isValue ? argumentText(argument, values, results) : argument.written);
}

QString limitReason(OperationProblem problem, const QString &step)
{
    switch (problem) {
    case OperationProblem::TextTooLong:
        return OperationTexts::tr("%1: the result is longer than %2 characters.")
            .arg(step, QString::number(longestOperationText));
    case OperationProblem::ListTooLong:
        return OperationTexts::tr("%1: the list has more than %2 parts.")
            .arg(step, QString::number(mostOperationElements));
    case OperationProblem::TooMuchWork:
        return OperationTexts::tr("%1: the steps so far have handled more than %2 characters; use "
                                  "shorter texts or fewer steps.")
            .arg(step, QString::number(mostOperationCharacters));
    default:
        return {};
    }
}

QString countReason(const OperationStep &step, const QString &name)
{
    const OperatorEntry &entry = operatorEntry(int(step.operation));
    const QString reason =
        entry.rule == OperatorEntry::AtLeast
            ? OperationTexts::tr("%1: \"%2\" needs at least %3 arguments, has %4.")
            : OperationTexts::tr("%1: \"%2\" needs %3 arguments, has %4.");
    return reason.arg(name, entry.text, QString::number(entry.arguments),
                      QString::number(step.arguments.size()));
}

} // namespace

QString decimalRangeNotice()
{
    return OperationTexts::tr(
        "The decimal range is 0-6, and if it exceeds this range, the boundary will be used");
}

QString OperationChain::reason(int index, const QVector<QString> &values,
                               const OperationResults &results) const
{
    const OperationStep &step = m_steps[size_t(index)];
    const OperationResult &result = results[size_t(index)];
    const QString name =
        step.name.isEmpty() ? OperationTexts::tr("Step %1").arg(index + 1) : shown(step.name);
    switch (result.problem) {
    case OperationProblem::None:
        return {};
    case OperationProblem::UnknownOperator:
        return OperationTexts::tr("%1: there is no operator \"%2\".").arg(name, shown(step.func));
    case OperationProblem::WrongArgumentCount:
        return countReason(step, name);
    case OperationProblem::TextTooLong:
    case OperationProblem::ListTooLong:
    case OperationProblem::TooMuchWork:
        return limitReason(result.problem, name);
    case OperationProblem::OutsideTheList: {
        const int source = step.arguments[0].listStep;
        const int position = argumentInteger(step.arguments[1], values).value_or(0);
        return OperationTexts::tr("%1: position %2 is outside the list of %3.")
            .arg(name, QString::number(position),
                 QString::number(results[size_t(source)].value.count()));
    }
    default:
        break;
    }
    const OperationArgument &argument = step.arguments[size_t(result.argument)];
    return argumentReason(result.problem)
        .arg(name, QString::number(result.argument + 1),
             quoted(argument, result.problem, values, results));
}

} // namespace lctrlsex
