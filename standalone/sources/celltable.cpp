#include "celltable.h"

#include "sourcetexts.h"

#include <QSet>

#include <cstring>

namespace sources {

namespace {

constexpr quint32 Missing = 0x80000000u;

} // namespace

CellTable::CellTable(const QStringList &columns, Cells cells)
    : DataTable(columns)
    , m_cells(std::move(cells))
{}

std::string_view CellTable::utf8(int row, int column) const
{
    const size_t first = m_cells.starts[size_t(row)];
    const size_t rowEnd = size_t(row) + 1 < m_cells.starts.size() ? m_cells.starts[size_t(row) + 1]
                                                                  : m_cells.ends.size();
    const size_t cell = first + size_t(column);
    if (cell >= rowEnd || (m_cells.ends[cell] & Missing) != 0) {
        return {};
    }
    const quint32 start = cell == 0 ? 0 : m_cells.ends[cell - 1] & ~Missing;
    const size_t size = m_cells.ends[cell] - start;
    return size == 0 ? std::string_view("") : std::string_view(&m_cells.bytes[start], size);
}

bool CellTable::isSameAs(const CellTable &other) const
{
    return columns() == other.columns() && m_cells.starts == other.m_cells.starts &&
           m_cells.ends == other.m_cells.ends && m_cells.bytes == other.m_cells.bytes;
}

void CellWriter::addCell(const char *text, size_t size)
{
    m_cells.bytes.insert(m_cells.bytes.end(), text, text + size);
    m_cells.ends.push_back(quint32(m_cells.bytes.size()) | (text == nullptr ? Missing : 0));
}

void CellWriter::dropRow()
{
    m_cells.ends.resize(m_cells.starts.back());
    m_cells.bytes.resize(m_cells.ends.empty() ? 0 : m_cells.ends.back() & ~Missing);
    m_cells.starts.pop_back();
}

bool CellWriter::isFull() const
{
    return m_cells.bytes.size() >= Missing - 1 || m_cells.ends.size() >= 0x7fffffffu;
}

QStringList uniqueColumns(const QStringList &names)
{
    QSet<QString> given;
    for (const QString &name : names) {
        given.insert(name);
    }
    QSet<QString> used;
    QStringList columns;
    columns.reserve(names.size());
    for (const QString &name : names) {
        const QString base = name.isEmpty() ? SourceTexts::tr("Column") : name;
        int number = name.isEmpty() ? columns.size() + 1 : 1;
        QString column = name.isEmpty() ? QStringLiteral("%1 %2").arg(base).arg(number) : name;
        while (used.contains(column) || (column != name && given.contains(column))) {
            column = QStringLiteral("%1 %2").arg(base).arg(++number);
        }
        used.insert(column);
        columns.append(column);
    }
    return columns;
}

} // namespace sources
