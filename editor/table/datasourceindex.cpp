#include "datasourceindex.h"

#include "datasourceconfig.h"

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
