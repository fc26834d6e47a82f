#include "operationnumber.h"
#include "operationprogram.h"
#include "operationsplit.h"

#include <algorithm>
#include <cmath>

namespace lctrlsex {

namespace {

/** One evaluation of one step. */
class StepEvaluation
{
public:
    StepEvaluation(const OperationStep &step, const QVector<QString> &values,
                   const OperationResults &results, OperationResult *result)
        : m_step(step)
        , m_values(values)
        , m_results(results)
        , m_result(result)
    {}

    void run();

private:
    void arithmetic();
    void end();
    void mid();
    void split();
    void index();
    void join();
    void decimal();

    /** The text of an argument, of which it is noted when it stands for nothing. */
    [[nodiscard]] QString text(int argument);
    [[nodiscard]] std::optional<double> number(int argument);
    /** A count or position as it is written. */
    [[nodiscard]] std::optional<int> integer(int argument);
    /** The same, 0 when it is no number or below 0. */
    [[nodiscard]] int count(int argument);
    void setPart(const QString &whole, int position, int length);

    void note(OperationProblem problem, int argument);
    void fail(OperationProblem problem, int argument = 0);
    /** Counts @p characters as work; false, and no result, when it becomes too much. */
    [[nodiscard]] bool afford(int characters);

    const OperationStep &m_step;
    const QVector<QString> &m_values;
    const OperationResults &m_results;
    OperationResult *m_result;
};

void StepEvaluation::note(OperationProblem problem, int argument)
{
    if (m_result->problem == OperationProblem::None) {
        m_result->problem = problem;
        m_result->argument = argument;
    }
}

void StepEvaluation::fail(OperationProblem problem, int argument)
{
    m_result->value.clear();
    const bool isConversion =
        problem == OperationProblem::NotANumber || problem == OperationProblem::NotAnInteger;
    const bool isExplained =
        m_result->problem != OperationProblem::None && m_result->argument == argument;
    if (m_result->problem != OperationProblem::TooMuchWork && !(isConversion && isExplained)) {
        m_result->problem = problem;
        m_result->argument = argument;
    }
}

bool StepEvaluation::afford(int characters)
{
    const int left = mostOperationCharacters - m_result->characters;
    if (characters <= left) {
        m_result->characters += characters;
        return true;
    }
    fail(OperationProblem::TooMuchWork);
    return false;
}

void StepEvaluation::setPart(const QString &whole, int position, int length)
{
    const int from = std::min(position, whole.size());
    const int size = std::min(length, whole.size() - from);
    if (size > longestOperationText) {
        fail(OperationProblem::TextTooLong);
    } else if (afford(size)) {
        m_result->value.setText(whole.mid(from, size));
    }
}

QString StepEvaluation::text(int argument)
{
    const OperationArgument &given = m_step.arguments[size_t(argument)];
    if (given.kind == OperationArgument::Absent) {
        note(given.flaw, argument);
    } else if (given.kind == OperationArgument::Step &&
               !m_results[size_t(given.index)].value.hasResult()) {
        note(OperationProblem::StepWithoutResult, argument);
    }
    return argumentText(given, m_values, m_results);
}

std::optional<double> StepEvaluation::number(int argument)
{
    const OperationArgument &given = m_step.arguments[size_t(argument)];
    if (given.kind == OperationArgument::Literal) {
        return given.number;
    }
    if (given.kind == OperationArgument::Step) {
        const OperationValue &value = m_results[size_t(given.index)].value;
        if (value.hasResult() && afford(value.charactersToRead())) {
            return value.number();
        }
    }
    if (given.kind == OperationArgument::Variable && given.index < m_values.size()) {
        const QString &value = m_values.at(given.index); // taking a reference is half of the work
        return afford(value.size()) ? numberOf(value) : std::nullopt;
    }
    const QString written = text(argument);
    if (afford(written.size())) {
        return numberOf(written);
    }
    return {};
}

std::optional<int> StepEvaluation::integer(int argument)
{
    const OperationArgument &given = m_step.arguments[size_t(argument)];
    const bool isVariable = given.kind == OperationArgument::Variable;
    if (isVariable && !afford(argumentText(given, m_values, m_results).size())) {
        return {};
    }
    return argumentInteger(given, m_values);
}

int StepEvaluation::count(int argument)
{
    const auto value = integer(argument);
    if (!value) {
        note(OperationProblem::CountIsZero, argument);
    }
    return std::max(0, value.value_or(0));
}

double applied(Operator operation, double left, double right)
{
    switch (operation) {
    case Operator::Add:
        return left + right;
    case Operator::Subtract:
        return left - right;
    case Operator::Multiply:
        return left * right;
    // Kept on purpose because one zero reading must not blank a display: it is skipped.
    case Operator::Divide:
        return right == 0 ? left : left / right;
    default:
        return right == 0 ? left : std::fmod(left, right);
    }
}

void StepEvaluation::arithmetic()
{
    double sum = 0;
    for (int i = 0; i < int(m_step.arguments.size()); ++i) {
        const auto operand = number(i);
        if (!operand) {
            fail(OperationProblem::NotANumber, i);
            return;
        }
        sum = i == 0 ? *operand : applied(m_step.operation, sum, *operand);
    }
    m_result->value.setShortNumber(sum);
}

void StepEvaluation::end()
{
    const QString whole = text(0);
    const int length = std::min(count(1), whole.size());
    setPart(whole, m_step.operation == Operator::Left ? 0 : whole.size() - length, length);
}

void StepEvaluation::mid()
{
    const QString whole = text(0);
    const int position = count(1);
    setPart(whole, position, count(2));
}

void StepEvaluation::split()
{
    const QString whole = text(0);
    const QString separator = text(1);
    if (!afford(whole.size()) || !afford(separator.size())) {
        return;
    }
    const SplitText parts = splitText(whole, unescapedSeparator(separator));
    if (parts.ends.size() > mostOperationElements) {
        fail(OperationProblem::ListTooLong);
    } else if (parts.joined.size() > longestOperationText) {
        fail(OperationProblem::TextTooLong);
    } else if (afford(parts.joined.size())) {
        m_result->value.setList(parts.joined, parts.ends);
    }
}

void StepEvaluation::index()
{
    const OperationArgument &source = m_step.arguments[0];
    const auto position = integer(1);
    if (!position) {
        fail(OperationProblem::NotAnInteger, 1);
        return;
    }
    const OperationValue *list =
        source.listStep < 0 ? nullptr : &m_results[size_t(source.listStep)].value;
    if (list == nullptr || !list->isList()) {
        const QString whole = text(0);
        setPart(whole, 0, whole.size());
    } else if (*position < 0 || *position >= list->count()) {
        fail(OperationProblem::OutsideTheList, 1);
    } else {
        const int begin = list->beginOf(*position);
        setPart(list->text(), begin, list->endOf(*position) - begin);
    }
}

void StepEvaluation::join()
{
    QString joined;
    for (int i = 0; i < int(m_step.arguments.size()); ++i) {
        const QString part = text(i);
        if (part.size() > longestOperationText - joined.size()) {
            fail(OperationProblem::TextTooLong);
            return;
        }
        if (!afford(part.size())) {
            return;
        }
        joined += part;
    }
    m_result->value.setText(joined);
}

void StepEvaluation::decimal()
{
    const auto value = number(0);
    const QString written = text(1);
    const auto places = afford(written.size()) ? integerOf(written) : std::nullopt;
    m_result->isPlacesClamped = places && (*places < 0 || *places > 6);
    if (!value) {
        fail(OperationProblem::NotANumber, 0);
    } else if (!places) {
        fail(OperationProblem::NotAnInteger, 1);
    } else {
        m_result->value.setFixedNumber(*value, std::clamp(*places, 0, 6));
    }
}

void StepEvaluation::run()
{
    if (!m_step.hasArguments) {
        fail(m_step.operation == Operator::Unknown ? OperationProblem::UnknownOperator
                                                   : OperationProblem::WrongArgumentCount);
        return;
    }
    switch (m_step.operation) {
    case Operator::Left:
    case Operator::Right:
        end();
        break;
    case Operator::Mid:
        mid();
        break;
    case Operator::Split:
        split();
        break;
    case Operator::Index:
        index();
        break;
    case Operator::Join:
        join();
        break;
    case Operator::Decimal:
        decimal();
        break;
    default:
        arithmetic();
    }
    if (m_result->problem == OperationProblem::TooMuchWork) {
        m_result->value.clear();
    }
}

} // namespace

QString argumentText(const OperationArgument &argument, const QVector<QString> &values,
                     const OperationResults &results)
{
    switch (argument.kind) {
    case OperationArgument::Literal:
        return argument.written;
    case OperationArgument::Variable:
        return argument.index < values.size() ? values.at(argument.index) : QString();
    case OperationArgument::Step:
        return results[size_t(argument.index)].value.text();
    case OperationArgument::Absent:
        break;
    }
    return {};
}

std::optional<int> argumentInteger(const OperationArgument &argument,
                                   const QVector<QString> &values)
{
    const bool isVariable = argument.kind == OperationArgument::Variable;
    return isVariable ? integerOf(argumentText(argument, values, {})) : argument.integer;
}

void evaluateOperation(const std::vector<OperationStep> &steps, int index,
                       const QVector<QString> &values, OperationResults *results)
{
    OperationResult &result = (*results)[size_t(index)];
    result.value.clear();
    result.problem = OperationProblem::None;
    result.isPlacesClamped = false;
    result.characters = index == 0 ? 0 : (*results)[size_t(index) - 1].characters;
    StepEvaluation(steps[size_t(index)], values, *results, &result).run();
}

} // namespace lctrlsex
