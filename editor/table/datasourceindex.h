#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

struct DataSourceConfig;

namespace lctrlsex {

/** The two type numbers that stand behind a qualified key. */
struct KeyDescriptor
{
    int sourceType = 0;
    int keyType = 0;

    bool operator==(const KeyDescriptor &other) const;
};

/** A key of a source as documents name it: source name, ":" and key name. */
[[nodiscard]] QString qualifiedKey(const QString &source, const QString &key);

/**
 * The larger of both, but a @p current of 100 or more is kept: kept on purpose because lists must
 * not outgrow the screen for the sake of one long name.
 */
[[nodiscard]] int longerLength(int current, int candidate);

/**
 * What an editor offers and knows of the enabled data sources: a value, read once from the
 * configuration.
 */
class DataSourceIndex
{
public:
    DataSourceIndex() = default;
    /** @p selectedSource is the name of the source whose fields are offered; may be unknown. */
    DataSourceIndex(const DataSourceConfig &config, const QString &selectedSource);

    /** Names of the enabled sources, in the order of the configuration. */
    [[nodiscard]] QStringList sourceNames() const { return m_sources; }
    /** The selected source's name; empty when it is not an enabled one. */
    [[nodiscard]] QString selectedSource() const { return m_selected; }
    /** Every key of every enabled source by its qualified key. */
    [[nodiscard]] QMap<QString, KeyDescriptor> descriptors() const { return m_descriptors; }

    /** Names of the selected source's fields, sorted. */
    [[nodiscard]] QStringList fieldNames() const { return m_values.keys(); }
    /** Current values of the selected source's fields by name. */
    [[nodiscard]] QMap<QString, QString> values() const { return m_values; }
    /** Current values of all fields of the enabled sources by qualified key. */
    [[nodiscard]] QMap<QString, QString> qualifiedValues() const { return m_qualifiedValues; }

    /** The number that the lists' least width is set to: 10, or what the longest field name has. */
    [[nodiscard]] int listWidth() const { return m_listWidth; }

    /** Whether menus made from both offer the same. */
    [[nodiscard]] bool offersSameAs(const DataSourceIndex &other) const;

private:
    QStringList m_sources;
    QString m_selected;
    QMap<QString, KeyDescriptor> m_descriptors;
    QMap<QString, QString> m_values;
    QMap<QString, QString> m_qualifiedValues;
    int m_listWidth = 10;
};

} // namespace lctrlsex
