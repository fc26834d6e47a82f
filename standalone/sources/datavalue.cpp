#include "datavalue.h"

namespace sources {

/** What stands behind a value that is not missing. */
struct DataRep
{
    explicit DataRep(DataValue::Kind valueKind)
        : kind(valueKind)
    {}
    virtual ~DataRep() = default;
    DataRep(const DataRep &) = delete;
    DataRep &operator=(const DataRep &) = delete;

    [[nodiscard]] virtual QString text() const { return QString(); }
    [[nodiscard]] virtual int size() const { return 0; }
    [[nodiscard]] virtual DataValue at(int) const { return DataValue(); }
    [[nodiscard]] virtual QString name(int) const { return QString(); }
    [[nodiscard]] virtual int indexOf(const QString &) const { return -1; }
    [[nodiscard]] virtual const DataTable *table() const { return nullptr; }

    const DataValue::Kind kind;
};

struct TextRep : DataRep
{
    explicit TextRep(QString value)
        : DataRep(DataValue::Kind::Text)
        , m_text(std::move(value))
    {}
    [[nodiscard]] QString text() const override { return m_text; }

private:
    QString m_text;
};

struct ListRep : DataRep
{
    explicit ListRep(QVector<DataValue> entries)
        : DataRep(DataValue::Kind::List)
        , m_entries(std::move(entries))
    {}
    [[nodiscard]] int size() const override { return m_entries.size(); }
    [[nodiscard]] DataValue at(int index) const override { return m_entries.at(index); }

private:
    QVector<DataValue> m_entries;
};

struct RecordRep : DataRep
{
    explicit RecordRep(QVector<DataValue::Member> members)
        : DataRep(DataValue::Kind::Record)
        , m_members(std::move(members))
    {}
    [[nodiscard]] int size() const override { return m_members.size(); }
    [[nodiscard]] DataValue at(int index) const override { return m_members.at(index).second; }
    [[nodiscard]] QString name(int index) const override { return m_members.at(index).first; }
    [[nodiscard]] int indexOf(const QString &name) const override
    {
        for (int i = m_members.size() - 1; i >= 0; --i) {
            if (m_members.at(i).first == name) {
                return i;
            }
        }
        return -1;
    }

private:
    QVector<DataValue::Member> m_members;
};

struct RowRep : DataRep
{
    RowRep(std::shared_ptr<const DataTable> table, int row)
        : DataRep(DataValue::Kind::Record)
        , m_table(std::move(table))
        , m_row(row)
    {}
    [[nodiscard]] int size() const override { return m_table->columns().size(); }
    [[nodiscard]] DataValue at(int index) const override
    {
        return DataValue::fromText(m_table->text(m_row, index));
    }
    [[nodiscard]] QString name(int index) const override { return m_table->columns().at(index); }
    [[nodiscard]] int indexOf(const QString &name) const override
    {
        return m_table->columnOf(name);
    }

private:
    std::shared_ptr<const DataTable> m_table;
    int m_row;
};

struct TableRep : DataRep
{
    explicit TableRep(std::shared_ptr<const DataTable> table)
        : DataRep(DataValue::Kind::List)
        , m_table(std::move(table))
    {}
    [[nodiscard]] int size() const override { return m_table->rowCount(); }
    [[nodiscard]] DataValue at(int index) const override
    {
        return DataValue(std::make_shared<RowRep>(m_table, index));
    }
    [[nodiscard]] const DataTable *table() const override { return m_table.get(); }

private:
    std::shared_ptr<const DataTable> m_table;
};

DataTable::DataTable(QStringList columns)
    : m_columns(std::move(columns))
{}

DataTable::~DataTable() = default;

QString DataTable::text(int row, int column) const
{
    const std::string_view cell = utf8(row, column);
    return QString::fromUtf8(cell.data(), int(cell.size()));
}

DataValue DataValue::fromText(const QString &text)
{
    return text.isNull() ? DataValue() : DataValue(std::make_shared<TextRep>(text));
}

DataValue DataValue::fromList(QVector<DataValue> entries)
{
    return DataValue(std::make_shared<ListRep>(std::move(entries)));
}

DataValue DataValue::fromRecord(QVector<Member> members)
{
    return DataValue(std::make_shared<RecordRep>(std::move(members)));
}

DataValue DataValue::fromTable(std::shared_ptr<const DataTable> table)
{
    return table ? DataValue(std::make_shared<TableRep>(std::move(table))) : DataValue();
}

DataValue::Kind DataValue::kind() const
{
    return m_rep ? m_rep->kind : Kind::Missing;
}

QString DataValue::text() const
{
    return m_rep ? m_rep->text() : QString();
}

int DataValue::size() const
{
    return m_rep ? m_rep->size() : 0;
}

DataValue DataValue::at(int index) const
{
    return index >= 0 && index < size() ? m_rep->at(index) : DataValue();
}

QString DataValue::memberName(int index) const
{
    return index >= 0 && index < size() ? m_rep->name(index) : QString();
}

int DataValue::memberIndex(const QString &name) const
{
    return m_rep ? m_rep->indexOf(name) : -1;
}

const DataTable *DataValue::table() const
{
    return m_rep ? m_rep->table() : nullptr;
}

static bool sameRows(const DataTable &left, const DataTable &right)
{
    if (left.rowCount() != right.rowCount() || left.columns() != right.columns()) {
        return false;
    }
    for (int row = 0; row < left.rowCount(); ++row) {
        for (int column = 0; column < left.columns().size(); ++column) {
            if (left.text(row, column) != right.text(row, column)) {
                return false;
            }
        }
    }
    return true;
}

bool DataValue::operator==(const DataValue &other) const
{
    if (m_rep == other.m_rep) {
        return true;
    }
    if (kind() != other.kind() || size() != other.size() || text() != other.text()) {
        return false;
    }
    if (table() != nullptr && other.table() != nullptr) {
        return sameRows(*table(), *other.table());
    }
    for (int i = 0; i < size(); ++i) {
        if (memberName(i) != other.memberName(i) || at(i) != other.at(i)) {
            return false;
        }
    }
    return true;
}

} // namespace sources
