#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>
#include <string_view>
#include <utility>

namespace sources {

/**
 * Rows and columns of text on which a value can stand, so that a million rows do not take a value
 * for each cell. Does not change once a DataValue has it; any thread may ask.
 */
class DataTable
{
public:
    /** The names of @p columns are unique; there may be none of them. */
    explicit DataTable(QStringList columns);
    virtual ~DataTable();
    DataTable(const DataTable &) = delete;
    DataTable &operator=(const DataTable &) = delete;

    [[nodiscard]] const QStringList &columns() const { return m_columns; }
    /** Index of the column of that name, -1 when there is none. */
    [[nodiscard]] int columnOf(const QString &name) const { return m_columns.indexOf(name); }
    [[nodiscard]] virtual int rowCount() const = 0;
    /** A cell within the table, where it stands in UTF-8; null when it is missing there. */
    [[nodiscard]] virtual std::string_view utf8(int row, int column) const = 0;
    /** The same as a text. */
    [[nodiscard]] QString text(int row, int column) const;

private:
    const QStringList m_columns;
};

struct DataRep;

/**
 * What a source delivers: a text, a list, a record of named members, or nothing, to any depth.
 * Immutable and implicitly shared; any thread may ask.
 */
class DataValue
{
public:
    enum class Kind { Missing, Text, List, Record };
    using Member = std::pair<QString, DataValue>;

    /** Missing. */
    DataValue() = default;
    /** A text; a null one is missing. Numbers and truth values are texts as they were written. */
    [[nodiscard]] static DataValue fromText(const QString &text);
    [[nodiscard]] static DataValue fromList(QVector<DataValue> entries);
    /** Members keep their order; of two that have one name the later one counts. */
    [[nodiscard]] static DataValue fromRecord(QVector<Member> members);
    /** A list of records, one a row, each with a text for each column. Null is missing. */
    [[nodiscard]] static DataValue fromTable(std::shared_ptr<const DataTable> table);

    [[nodiscard]] Kind kind() const;
    [[nodiscard]] bool isMissing() const { return !m_rep; }
    /** Of a text; null for any other kind. */
    [[nodiscard]] QString text() const;
    /** Entries of a list, members of a record, else 0. */
    [[nodiscard]] int size() const;
    /** Entry of a list or member of a record; missing when out of range. */
    [[nodiscard]] DataValue at(int index) const;
    /** Name of a record's member; null when out of range. */
    [[nodiscard]] QString memberName(int index) const;
    /** Index of a record's member, -1 when there is none of that name. */
    [[nodiscard]] int memberIndex(const QString &name) const;
    /** A record's member; missing when there is none of that name. */
    [[nodiscard]] DataValue member(const QString &name) const { return at(memberIndex(name)); }
    /** The table that a list stands on; null for any other value. Lives as long as the value. */
    [[nodiscard]] const DataTable *table() const;

    /** Equal in kind and in all that they hold, whatever they stand on. */
    [[nodiscard]] bool operator==(const DataValue &other) const;
    [[nodiscard]] bool operator!=(const DataValue &other) const { return !(*this == other); }

private:
    explicit DataValue(std::shared_ptr<const DataRep> rep)
        : m_rep(std::move(rep))
    {}
    friend struct TableRep;

    std::shared_ptr<const DataRep> m_rep;
};

} // namespace sources
