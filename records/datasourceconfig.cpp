#include "datasourceconfig.h"

#include <algorithm>
#include <tuple>

const DataSourceEntry *DataSourceConfig::find(const QString &name) const
{
    const auto found =
        std::find_if(sources.cbegin(), sources.cend(),
                     [&name](const DataSourceEntry &source) { return source.name == name; });
    return found == sources.cend() ? nullptr : &*found;
}

static auto structure(const DataSourceKey &key)
{
    return std::tie(key.name, key.type, key.selected);
}

static auto structure(const DataSourceEntry &source)
{
    return std::tie(source.name, source.type, source.enabled);
}

static auto structure(const DynamicDataField &field)
{
    return std::tie(field.name, field.selected);
}

bool operator==(const DataSourceKey &left, const DataSourceKey &right)
{
    return structure(left) == structure(right) && left.value == right.value;
}

bool operator==(const DataSourceEntry &left, const DataSourceEntry &right)
{
    return structure(left) == structure(right) && left.keys == right.keys;
}

bool operator==(const DataSourceConfig &left, const DataSourceConfig &right)
{
    return left.sources == right.sources;
}

bool operator==(const DynamicDataField &left, const DynamicDataField &right)
{
    return structure(left) == structure(right) && left.value == right.value;
}

bool operator==(const DynamicDataSource &left, const DynamicDataSource &right)
{
    return left.name == right.name && left.fields == right.fields;
}

template <typename Record>
static bool sameStructures(const QVector<Record> &left, const QVector<Record> &right)
{
    return std::equal(
        left.cbegin(), left.cend(), right.cbegin(), right.cend(),
        [](const Record &a, const Record &b) { return structure(a) == structure(b); });
}

bool sameStructure(const DataSourceConfig &left, const DataSourceConfig &right)
{
    return std::equal(left.sources.cbegin(), left.sources.cend(), right.sources.cbegin(),
                      right.sources.cend(), [](const DataSourceEntry &a, const DataSourceEntry &b) {
                          return structure(a) == structure(b) && sameStructures(a.keys, b.keys);
                      });
}

bool sameStructure(const QVector<DynamicDataSource> &left, const QVector<DynamicDataSource> &right)
{
    return std::equal(left.cbegin(), left.cend(), right.cbegin(), right.cend(),
                      [](const DynamicDataSource &a, const DynamicDataSource &b) {
                          return a.name == b.name && sameStructures(a.fields, b.fields);
                      });
}
