#include "conditionalstyles.h"
#include "ltext_client_p.h"
#include "table/singlefields.h"
#include "textedit.h"

#include <QLoggingCategory>

namespace Lum {
namespace LTextPlugin {

Q_LOGGING_CATEGORY(pluginLog, "lctrlsex.plugin")

/** Says why nothing was read of what an item stores. */
static lctrlsex::RecordsFault report(const lctrlsex::RecordsFault &fault, const char *what)
{
    if (fault) {
        qCWarning(pluginLog).noquote()
            << what << "of a text item, byte" << fault.offset << ":" << fault.reason
            << "- they stay stored as they are until new ones are set";
    }
    return fault;
}

QString LTextClient::DynamicDataListToJson(QMap<QString, DynamicData> &styles)
{
    QMap<QString, QString> names = lctrlsex::styleNames(styles);
    m_form->wgtTextEditor->UpdateConditionStyles(names);
    return lctrlsex::stylesToJson(styles);
}

void LTextClient::JsonToDynamicDataList(const QString &jsonString,
                                        QMap<QString, DynamicData> &dynamicData)
{
    m_stylesFault =
        report(lctrlsex::stylesFromJson(jsonString, &dynamicData), "Conditional styles");
    QMap<QString, QString> names = lctrlsex::styleNames(dynamicData);
    m_form->wgtTextEditor->UpdateConditionStyles(names);
}

QString LTextClient::DynamicDataListToJsonCalculation()
{
    QMap<QString, QString> values = lctrlsex::defaultValues(m_calculations);
    m_form->wgtTextEditor->UpdateExpression(values);
    return lctrlsex::calculationsToJson(m_calculations);
}

void LTextClient::JsonToDynamicDataListCalculation(const QString &text)
{
    m_calculationsFault =
        report(lctrlsex::calculationsFromJson(text, &m_calculations), "Calculations");
}

void LTextClient::PrepareDynamicDataWithPrefix(DynamicData &combinedData)
{
    const Bound bound(this);
    const QMap<QString, QString> fields = bound.value(&LTextEffectNode::FieldNameValues);
    if (bound) {
        combinedData = lctrlsex::combinedStyles(
            m_conditionalStyles,
            lctrlsex::fieldsInOrder(lctrlsex::singleFields(fields), BoundField()));
    }
}

void LTextClient::PrepareDynamicDataCal(CalculationDynamicData &combinedData)
{
    const Bound bound(this);
    const QMap<QString, QString> fields = bound.value(&LTextEffectNode::FieldNameValues);
    if (!bound) {
        return;
    }
    combinedData.variables = VariablesOf(fields, BoundField());
    combinedData.conditions = m_calculations;
}

QVector<CalculationVariable> LTextClient::VariablesOf(const QMap<QString, QString> &fields,
                                                      const QString &bound)
{
    const QMap<QString, QString> values = lctrlsex::singleFields(fields);
    QVector<CalculationVariable> variables;
    for (const QString &name : lctrlsex::fieldsInOrder(values, bound)) {
        variables.append({name, values.value(name)});
    }
    return variables;
}

void LTextClient::ProcessDialogResult(DynamicData resultData)
{
    for (DynamicData &source : m_conditionalStyles) {
        source.items.clear();
    }
    for (const FieldConditions &entry : qAsConst(resultData.items)) {
        m_filer->begin(entry);
        for (const SpanCondition &condition : entry.conditions) {
            ProcessSpanCondition(condition);
        }
    }
}

void LTextClient::ProcessSpanCondition(SpanCondition spanCond)
{
    m_filer->add(std::move(spanCond));
}

void LTextClient::ProcessDialogResultCalculation(CalculationDynamicData resultData)
{
    m_calculations.clear();
    for (CalculationCondition &calculation : resultData.conditions) {
        ProcessCalculation(calculation);
    }
}

void LTextClient::ProcessCalculation(CalculationCondition &calculation)
{
    m_calculations.append(calculation);
}

void LTextClient::AcceptConditionalStyles(const DynamicData &result)
{
    const Bound bound(this);
    if (!bound) {
        return;
    }
    ProcessDialogResult(result);
    const QString text = DynamicDataListToJson(m_conditionalStyles);
    if (bound) {
        m_stylesText = text;
        m_stylesFault = {};
        m_node->SetSpanConditions(text);
    }
}

void LTextClient::AcceptOperations(const CalculationDynamicData &result)
{
    const Bound bound(this);
    if (!bound) {
        return;
    }
    ProcessDialogResultCalculation(result);
    const QString text = DynamicDataListToJsonCalculation();
    if (bound) {
        m_calculationsText = text;
        m_calculationsFault = {};
        m_node->SetCalculation(text);
    }
}

// A text without a table has the configuration announced at every key.
void LTextClient::LoadRecords()
{
    const Bound bound(this);
    const QString styles = bound.value(&LTextEffectNode::GetSpanConditions);
    const QString calculations = bound.value(&LTextEffectNode::GetCalculation);
    if (!bound) {
        return;
    }
    const bool isOther = m_recordsNode != m_node;
    m_recordsNode = m_node;
    if (isOther || styles != m_stylesText) {
        m_stylesText = styles;
        JsonToDynamicDataList(styles, m_conditionalStyles);
    }
    if (isOther || calculations != m_calculationsText) {
        m_calculationsText = calculations;
        JsonToDynamicDataListCalculation(calculations);
    }
}

} // namespace LTextPlugin
} // namespace Lum
