#include "operationrow.h"

#include "operationprogram.h"

namespace lctrlsex {

static QString reference(const QString &name)
{
    return QLatin1String("${") + name + QLatin1Char('}');
}

OperationVariables::OperationVariables(const QVector<CalculationVariable> &variables)
    : m_all(variables)
{
    for (const CalculationVariable &variable : variables) {
        m_keys.insert(variable.name, variable.key);
        m_words.append(reference(variable.name));
    }
    m_words.removeDuplicates();
}

QStringList OperationVariables::words(const QVector<CalculationStep> &steps) const
{
    QStringList words;
    for (const CalculationStep &step : steps) {
        words.append(reference(step.variableName));
    }
    words.removeDuplicates();
    return m_words + words;
}

void OperationEvaluation::evaluate(const CalculationCondition &calculation,
                                   const OperationVariables &variables)
{
    // Only what is named: a chain takes up all its variables each time, and there may be thousands.
    QVector<QString> names;
    m_values.clear();
    for (const CalculationStep &step : calculation.expressions) {
        for (const QString &argument : step.expression.args) {
            const QString name = argumentName(argument);
            if (variables.contains(name)) {
                names.append(name);
                m_values.append(variables.key(name));
            }
        }
    }
    m_chain = OperationChain(calculation, names);
    m_chain.evaluate(m_values, &m_results);
}

QString OperationEvaluation::text(int step) const
{
    return has(step) ? m_results[size_t(step)].value.text() : QString();
}

QString OperationEvaluation::reason(int step) const
{
    if (!has(step)) {
        return {};
    }
    const QString reason = m_chain.reason(step, m_values, m_results);
    return reason.isEmpty() && isPlacesClamped(step) ? decimalRangeNotice() : reason;
}

bool OperationEvaluation::isPlacesClamped(int step) const
{
    return has(step) && m_results[size_t(step)].isPlacesClamped;
}

int fieldCount(const QString &func)
{
    const Operator known = operatorOf(func);
    return known == Operator::Unknown ? 2 : operatorEntry(int(known)).arguments;
}

/** Gives the step all the arguments that its editor shows. */
static void fill(QStringList *arguments, int count)
{
    while (arguments->size() < count) {
        arguments->append(QString());
    }
}

CalculationStep newStep(const QVector<CalculationStep> &steps)
{
    UniqueNames names;
    for (const CalculationStep &step : steps) {
        names.take(step.variableName);
    }
    CalculationStep step;
    step.variableName = names.makeUnique(QStringLiteral("var%1").arg(steps.size() + 1));
    step.expression.func = operatorEntry(int(Operator::Add)).text;
    fill(&step.expression.args, fieldCount(step.expression.func));
    return step;
}

void setArgument(CalculationStep *step, int index, const QString &text)
{
    fill(&step->expression.args, fieldCount(step->expression.func));
    step->expression.args[index] = text;
}

void setOperator(CalculationStep *step, int index)
{
    const OperatorEntry &entry = operatorEntry(index);
    QStringList shown = step->expression.args;
    QStringList others = shown.mid(fieldCount(step->expression.func));
    shown = shown.mid(0, qMin(fieldCount(step->expression.func), entry.arguments));
    fill(&shown, entry.arguments);
    step->expression.func = entry.text;
    step->expression.args = entry.rule == OperatorEntry::Exactly ? shown : shown + others;
}

} // namespace lctrlsex
