#pragma once

#include "datasourceconfig.h"
#include "datavalue.h"

namespace sources {

/**
 * The keys that a source's record offers, with their current values as texts of at most 1,000
 * characters: a text "a.b", a list of texts "a.b[]", a record "a.{f1,f2}" and its members, a list
 * of records "a.{f1,f2}[]", a list of lists "a[][]". At most 1,000 keys; of a list its first 100
 * entries are looked at; names that a bind key cannot hold are left out.
 */
[[nodiscard]] QVector<DataSourceKey> offeredKeys(const DataValue &record);

} // namespace sources
