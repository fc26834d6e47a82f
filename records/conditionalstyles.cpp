#include "conditionalstyles.h"

namespace lctrlsex {

QString qualified(const QString &source, const QString &key)
{
    return key.isEmpty() ? key : source + QLatin1Char(':') + key;
}

/** How much of @p key names its source, the ":" included; 0 when a part of it is missing. */
static int sourceLength(const QString &key)
{
    const int length = key.indexOf(QLatin1Char(':')) + 1;
    return length < key.size() ? length : 0;
}

void StyleFiler::begin(const FieldConditions &entry)
{
    m_entry = entry;
    m_entry.conditions.clear();
    m_source.clear();
    m_places.clear();
    if (entry.conditions.isEmpty()) {
        place();
    }
}

void StyleFiler::add(SpanCondition condition)
{
    if (!condition.key.isEmpty()) {
        const int length = sourceLength(condition.key);
        m_source = condition.key.left(qMax(0, length - 1));
        condition.key.remove(0, length);
    }
    place().conditions.append(condition);
}

void StyleFiler::file(const FieldConditions &entry)
{
    begin(entry);
    for (const SpanCondition &condition : entry.conditions) {
        add(condition);
    }
}

FieldConditions &StyleFiler::place()
{
    DynamicData &data = (*m_styles)[m_source];
    const auto known = m_places.constFind(m_source);
    if (known != m_places.constEnd()) {
        return data.items[*known];
    }
    m_places.insert(m_source, data.items.size());
    data.name = m_source;
    data.items.append(m_entry);
    return data.items.last();
}

DynamicData combinedStyles(const ConditionalStyles &styles, const QStringList &fields)
{
    DynamicData combined;
    combined.fields = fields;
    for (auto source = styles.cbegin(); source != styles.cend(); ++source) {
        for (FieldConditions entry : source->items) {
            for (SpanCondition &condition : entry.conditions) {
                condition.key = qualified(source.key(), condition.key);
            }
            combined.items.append(entry);
        }
    }
    return combined;
}

QMap<QString, QString> styleNames(const ConditionalStyles &styles)
{
    QMap<QString, QString> names;
    for (const DynamicData &source : styles) {
        for (const FieldConditions &entry : source.items) {
            if (!entry.id.isEmpty()) {
                names.insert(entry.id, entry.name);
            }
        }
    }
    return names;
}

QMap<QString, QString> defaultValues(const QVector<CalculationCondition> &calculations)
{
    QMap<QString, QString> values;
    for (const CalculationCondition &calculation : calculations) {
        if (!calculation.key.isEmpty()) {
            values.insert(calculation.key, calculation.defaultValue);
        }
    }
    return values;
}

} // namespace lctrlsex
