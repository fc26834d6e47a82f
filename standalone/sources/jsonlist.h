#pragma once

#include "celltable.h"

#include <QHash>

namespace sources {

/**
 * A list that is being read. As long as each entry is a record of texts it is kept as a table,
 * which takes a tenth of what the records would.
 */
class JsonList
{
public:
    void append(const DataValue &value);
    /** The list; nothing is left of it here. */
    [[nodiscard]] DataValue take();

private:
    [[nodiscard]] bool appendRow(const DataValue &record);
    [[nodiscard]] DataValue takeTable();
    [[nodiscard]] bool isTable() const { return m_entries.isEmpty() && m_writer.rowCount() > 0; }

    CellWriter m_writer;
    QStringList m_columns;
    QHash<QString, int> m_columnOf;
    QVector<DataValue> m_entries;
};

} // namespace sources
