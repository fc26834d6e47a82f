#include "operationchain.h"

namespace lctrlsex {

OperationChain::OperationChain(const CalculationCondition &calculation,
                               const QVector<QString> &variables)
    : m_steps(compileSteps(calculation, variables))
    , m_defaultValue(calculation.defaultValue)
{}

void OperationChain::evaluate(const QVector<QString> &values, OperationResults *results) const
{
    results->resize(m_steps.size());
    for (int i = 0; i < stepCount(); ++i) {
        evaluateOperation(m_steps, i, values, results);
    }
}

void OperationChain::evaluateStep(int index, const QVector<QString> &values,
                                  OperationResults *results) const
{
    results->resize(m_steps.size());
    evaluateOperation(m_steps, index, values, results);
}

QString OperationChain::published(const OperationResults &results) const
{
    const bool hasResult =
        !m_steps.empty() && results.size() == m_steps.size() && results.back().value.hasResult();
    return hasResult ? results.back().value.text() : m_defaultValue;
}

} // namespace lctrlsex
