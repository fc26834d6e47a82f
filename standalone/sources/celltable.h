#pragma once

#include "datavalue.h"

#include <vector>

namespace sources {

/** The cells of a table, one behind the other as UTF-8: four bytes a cell beside its text. */
struct Cells
{
    std::vector<char> bytes;
    std::vector<quint32> ends;   ///< Where each cell ends in bytes; the highest bit: missing.
    std::vector<quint32> starts; ///< Index in ends of each row's first cell.
};

/** A table that stands on Cells. Cells behind the end of a row are missing. */
class CellTable : public DataTable
{
public:
    CellTable(const QStringList &columns, Cells cells);

    [[nodiscard]] int rowCount() const override { return int(m_cells.starts.size()); }
    [[nodiscard]] std::string_view utf8(int row, int column) const override;
    /** Equal to the byte; two tables that are not may still hold the same. */
    [[nodiscard]] bool isSameAs(const CellTable &other) const;

private:
    const Cells m_cells;
};

/** Fills Cells from left to right and from top to bottom. */
class CellWriter
{
public:
    /** Room for @p bytes of text is made at once. */
    explicit CellWriter(size_t bytes = 0) { m_cells.bytes.reserve(bytes); }

    void beginRow() { m_cells.starts.push_back(quint32(m_cells.ends.size())); }
    /** Text in UTF-8; null with a size of 0 is a cell that is missing. */
    void addCell(const char *text, size_t size);
    /** Takes the cells of the row that was begun last away again. */
    void dropRow();

    [[nodiscard]] int rowCount() const { return int(m_cells.starts.size()); }
    /** Whether texts and cells still fit into what they are counted with. */
    [[nodiscard]] bool isFull() const;
    /** The cells; nothing is left to write to. */
    [[nodiscard]] Cells take() { return std::move(m_cells); }

private:
    Cells m_cells;
};

/** Names that are unique and not empty: "Column 3", and "Name 2" for the second "Name". */
[[nodiscard]] QStringList uniqueColumns(const QStringList &names);

/** Most columns of a table. */
constexpr int MostColumns = 4096;

} // namespace sources
