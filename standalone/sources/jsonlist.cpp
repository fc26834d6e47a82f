#include "jsonlist.h"

namespace sources {

void JsonList::append(const DataValue &value)
{
    if (m_entries.isEmpty() && appendRow(value)) {
        return;
    }
    if (isTable()) {
        const DataValue table = takeTable();
        m_entries.reserve(table.size() + 1);
        for (int i = 0; i < table.size(); ++i) {
            m_entries.append(table.at(i));
        }
    }
    m_entries.append(value);
}

bool JsonList::appendRow(const DataValue &record)
{
    if (record.kind() != DataValue::Kind::Record || record.size() == 0 || m_writer.isFull()) {
        return false;
    }
    QVector<QByteArray> cells(m_columns.size());
    for (int i = 0; i < record.size(); ++i) {
        const DataValue value = record.at(i);
        const bool isCell = value.isMissing() || value.kind() == DataValue::Kind::Text;
        const QString name = record.memberName(i);
        int column = m_columnOf.value(name, -1);
        if (!isCell || (column < 0 && m_columns.size() == MostColumns)) {
            return false;
        }
        if (column < 0) {
            column = m_columns.size();
            m_columns.append(name);
            m_columnOf.insert(name, column);
            cells.append(QByteArray());
        }
        cells[column] = value.isMissing() ? QByteArray() : value.text().toUtf8();
    }
    m_writer.beginRow();
    for (const QByteArray &cell : qAsConst(cells)) {
        m_writer.addCell(cell.isNull() ? nullptr : cell.constData(), size_t(cell.size()));
    }
    return true;
}

DataValue JsonList::takeTable()
{
    DataValue table =
        DataValue::fromTable(std::make_shared<const CellTable>(m_columns, m_writer.take()));
    m_writer = CellWriter();
    m_columns.clear();
    m_columnOf.clear();
    return table;
}

DataValue JsonList::take()
{
    return isTable() ? takeTable() : DataValue::fromList(std::move(m_entries));
}

} // namespace sources
