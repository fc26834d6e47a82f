#include "datasourceindex.h"

#include "datasourceconfig.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace lctrlsex {

namespace {

constexpr int LengthNotCounted = 100;

} // namespace

bool KeyDescriptor::operator==(const KeyDescriptor &other) const
{
    return sourceType == other.sourceType && keyType == other.keyType;
}

QString qualifiedKey(const QString &source, const QString &key)
{
    return source + QLatin1Char(':') + key;
}

int longerLength(int current, int candidate)
{
    return current < candidate && current < LengthNotCounted ? candidate : current;
}

QMap<QString, QString> expressionsOf(const QString &calculationJson)
{
    QMap<QString, QString> expressions;
    const QJsonArray array = QJsonDocument::fromJson(calculationJson.toUtf8()).array();
    for (const QJsonValue &entry : array) {
        const QJsonObject object = entry.toObject();
        const QString key = object.value(QLatin1String("key")).toString();
        if (!key.isEmpty()) {
            const QJsonValue value = object.value(QLatin1String("defaultValue"));
            expressions.insert(key, value.toVariant().toString());
        }
    }
    return expressions;
}

DataSourceIndex::DataSourceIndex(const DataSourceConfig &config, const QString &selectedSource)
{
    for (const DataSourceEntry &source : config.sources) {
        if (!source.enabled) {
            continue;
        }
        m_sources.append(source.name);
        const bool isSelected = source.name == selectedSource;
        if (isSelected) {
            m_selected = source.name;
        }
        for (const DataSourceKey &key : source.keys) {
            const QString qualified = qualifiedKey(source.name, key.name);
            m_descriptors.insert(qualified, {source.type, key.type});
            m_qualifiedValues.insert(qualified, key.value);
            if (!isSelected) {
                continue;
            }
            m_values.insert(key.name, key.value);
            if (key.name.size() < LengthNotCounted) {
                m_listWidth = longerLength(m_listWidth, key.name.size());
            }
        }
    }
}

bool DataSourceIndex::offersSameAs(const DataSourceIndex &other) const
{
    return m_sources == other.m_sources && m_selected == other.m_selected &&
           fieldNames() == other.fieldNames();
}

} // namespace lctrlsex
