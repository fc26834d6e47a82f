#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

/** One key of a configured data source. */
struct DataSourceKey
{
    /** Type numbers of a key; more may come. */
    enum Type { Text = 1, ValueList = 2, Record = 3, RecordList = 4, TwoDimensional = 5 };

    /** Name or path, unique within its source. */
    QString name;
    /** One of Type; a number outside it is kept and treated as plain text. */
    int type = Text;
    /** Current value as text; empty before the first reading. */
    QString value;
    /** The user chose the key for use in programme items. */
    bool selected = false;
};

/** One configured data source. */
struct DataSourceEntry
{
    /** Type numbers of a source; more may come. */
    enum Type { CsvFile = 1, JsonFile = 2, Http = 3, Sql = 4, System = 5 };

    /** Unique name; free of the characters that the host refuses in names. */
    QString name;
    /** One of Type; a number outside it is kept. */
    int type = CsvFile;
    /** A disabled source is offered nowhere. */
    bool enabled = true;
    /** Keys in the order in which they are offered. */
    QVector<DataSourceKey> keys;
};

/** The data-source configuration: every source in its order. */
struct DataSourceConfig
{
    QVector<DataSourceEntry> sources;

    /** The source of that name, null when there is none; valid until the configuration changes. */
    [[nodiscard]] const DataSourceEntry *find(const QString &name) const;
};

/** One field of a dynamic data source, with its current value. */
struct DynamicDataField
{
    /** Name, unique within its source. */
    QString name;
    /** Current value as text; empty before the first reading. */
    QString value;
    /** The user chose the field for use in programme items. */
    bool selected = false;
};

/** The fields that one data source delivers now. */
struct DynamicDataSource
{
    /** Name of the source in the configuration. */
    QString name;
    /** Fields in the order in which the source delivers them. */
    QVector<DynamicDataField> fields;
};

[[nodiscard]] bool operator==(const DataSourceKey &left, const DataSourceKey &right);
[[nodiscard]] bool operator==(const DataSourceEntry &left, const DataSourceEntry &right);
[[nodiscard]] bool operator==(const DataSourceConfig &left, const DataSourceConfig &right);
[[nodiscard]] bool operator==(const DynamicDataField &left, const DynamicDataField &right);
[[nodiscard]] bool operator==(const DynamicDataSource &left, const DynamicDataSource &right);
[[nodiscard]] inline bool operator!=(const DataSourceConfig &left, const DataSourceConfig &right)
{
    return !(left == right);
}

/** True when both differ at most in current values: same sources, keys, types and flags. */
[[nodiscard]] bool sameStructure(const DataSourceConfig &left, const DataSourceConfig &right);
/** True when both differ at most in current values: same sources, fields and flags. */
[[nodiscard]] bool sameStructure(const QVector<DynamicDataSource> &left,
                                 const QVector<DynamicDataSource> &right);

Q_DECLARE_METATYPE(DataSourceConfig)
