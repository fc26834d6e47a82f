#include "keyoffer.h"

#include "datasourceconfigmanager.h"

#include <QStringList>

namespace sources {

namespace {

constexpr int MostKeys = 1000;
constexpr int LookedAt = 100;
constexpr int LongestValue = 1000;
constexpr int Deepest = 8;

/** Whether a name can be a step of a key: the dot separates the steps. */
bool isStep(const QString &name)
{
    return !name.isEmpty() && !name.contains(QLatin1Char('.')) &&
           !DataSourceConfigManager::ContainsIllegalChars(name);
}

/** What stands at the end of a key outside braces must be a word. */
bool endsAsWord(const QString &name)
{
    const QChar last = name.isEmpty() ? QChar() : name.at(name.size() - 1);
    return last.isLetterOrNumber() || last.isMark() || last == QLatin1Char('_');
}

bool startsAsWord(const QString &name)
{
    return !name.isEmpty() && (name.at(0).isLetterOrNumber() || name.at(0) == QLatin1Char('_'));
}

class Offer
{
public:
    [[nodiscard]] QVector<DataSourceKey> take() { return std::move(m_keys); }

    void addMembers(const QString &prefix, const DataValue &record, int depth)
    {
        for (int i = 0; i < record.size() && m_keys.size() < MostKeys; ++i) {
            const QString name = record.memberName(i);
            if (isStep(name) && (!prefix.isEmpty() || startsAsWord(name))) {
                add(prefix.isEmpty() ? name : prefix + QLatin1Char('.') + name, record.at(i),
                    depth);
            }
        }
    }

private:
    void add(const QString &path, const DataValue &value, int depth)
    {
        switch (value.kind()) {
        case DataValue::Kind::Missing:
            return;
        case DataValue::Kind::Text:
            append(path, DataSourceKey::Text, value.text());
            return;
        case DataValue::Kind::List:
            addList(path, value);
            return;
        case DataValue::Kind::Record:
            if (depth < Deepest) {
                const QStringList fields = fieldsOf(value);
                appendFields(path, fields, QString(), DataSourceKey::Record, value);
                addMembers(path, value, depth + 1);
            }
            return;
        }
    }

    void addList(const QString &path, const DataValue &list)
    {
        QStringList fields;
        int entries[4] = {};
        const int looked = qMin(list.size(), LookedAt);
        for (int i = 0; i < looked; ++i) {
            const DataValue entry = list.at(i);
            ++entries[int(entry.kind())];
            if (list.table() == nullptr) {
                addNew(fieldsOf(entry), &fields);
            }
        }
        if (list.table() != nullptr) {
            addNew(usable(list.table()->columns()), &fields);
        }
        if (entries[int(DataValue::Kind::Record)] > 0 || list.table() != nullptr) {
            appendFields(path, fields, QStringLiteral("[]"), DataSourceKey::RecordList, list.at(0));
        } else if (entries[int(DataValue::Kind::List)] > 0) {
            append(path, DataSourceKey::TwoDimensional, joined(list.at(0)), QStringLiteral("[][]"));
        } else if (entries[int(DataValue::Kind::Text)] > 0) {
            append(path, DataSourceKey::ValueList, joined(list), QStringLiteral("[]"));
        }
    }

    static QStringList usable(const QStringList &names)
    {
        QStringList fields;
        for (const QString &name : names) {
            if (isStep(name)) {
                fields.append(name);
            }
        }
        return fields;
    }

    /** Members that can be shown: texts and what is missing now. */
    static QStringList fieldsOf(const DataValue &record)
    {
        QStringList fields;
        for (int i = 0; i < record.size() && record.kind() == DataValue::Kind::Record; ++i) {
            const DataValue value = record.at(i);
            if (value.isMissing() || value.kind() == DataValue::Kind::Text) {
                fields.append(record.memberName(i));
            }
        }
        return usable(fields);
    }

    static void addNew(const QStringList &names, QStringList *fields)
    {
        for (const QString &name : names) {
            if (fields->size() < MostKeys && !fields->contains(name)) {
                fields->append(name);
            }
        }
    }

    static QString joined(const DataValue &list)
    {
        QString text;
        for (int i = 0; i < qMin(list.size(), LookedAt) && text.size() < LongestValue; ++i) {
            text += (i > 0 ? QStringLiteral("\n") : QString()) + list.at(i).text();
        }
        return text;
    }

    void appendFields(const QString &path, const QStringList &fields, const QString &tail,
                      DataSourceKey::Type type, const DataValue &record)
    {
        if (fields.isEmpty()) {
            return;
        }
        QString values;
        for (int i = 0; i < fields.size() && values.size() < LongestValue; ++i) {
            values +=
                (i > 0 ? QStringLiteral("\n") : QString()) + record.member(fields.at(i)).text();
        }
        const QString braces =
            QStringLiteral(".{") + fields.join(QLatin1Char(',')) + QLatin1Char('}');
        appendKey(path + braces + tail, type, values);
    }

    void append(const QString &path, DataSourceKey::Type type, const QString &value,
                const QString &tail = QString())
    {
        if (endsAsWord(path)) {
            appendKey(path + tail, type, value);
        }
    }

    void appendKey(const QString &name, DataSourceKey::Type type, const QString &value)
    {
        if (m_keys.size() < MostKeys) {
            m_keys.append({name, type, value.left(LongestValue), true});
        }
    }

    QVector<DataSourceKey> m_keys;
};

} // namespace

QVector<DataSourceKey> offeredKeys(const DataValue &record)
{
    Offer offer;
    offer.addMembers(QString(), record, 0);
    return offer.take();
}

} // namespace sources
