#include "conditionalstyles.h"

#include <QHash>

namespace lctrlsex {

QString qualified(const QString &source, const QString &key)
{
    return key.isEmpty() ? key : source + QLatin1Char(':') + key;
}

/** The source in front of the first ":"; empty without one. */
static QString sourceOf(const QString &key)
{
    return key.left(qMax(0, key.indexOf(QLatin1Char(':'))));
}

/** Files @p entry without its conditions; the place among the entries of that source. */
static int addEntry(ConditionalStyles *styles, const QString &source, const FieldConditions &entry)
{
    DynamicData &data = (*styles)[source];
    data.name = source;
    data.items.append({entry.id, entry.name, {}, entry.others});
    return data.items.size() - 1;
}

void fileEntry(ConditionalStyles *styles, const FieldConditions &entry)
{
    QString source;
    for (auto it = entry.conditions.crbegin(); it != entry.conditions.crend(); ++it) {
        source = it->key.isEmpty() ? source : sourceOf(it->key);
    }
    int place = addEntry(styles, source, entry);
    QHash<QString, int> places;
    auto *conditions = &(*styles)[source].items[place].conditions;
    for (SpanCondition condition : entry.conditions) {
        const QString own = condition.key.isEmpty() ? source : sourceOf(condition.key);
        if (own != source) {
            places.insert(source, place);
            source = own;
            place = places.contains(own) ? places.value(own) : addEntry(styles, own, entry);
            conditions = &(*styles)[source].items[place].conditions;
        }
        condition.key.remove(0, condition.key.indexOf(QLatin1Char(':')) + 1);
        conditions->append(condition);
    }
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

void takeStyles(ConditionalStyles *styles, const DynamicData &result)
{
    for (DynamicData &source : *styles) {
        source.items.clear();
    }
    for (const FieldConditions &entry : result.items) {
        fileEntry(styles, entry);
    }
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
