#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace lctrlsex {

/**
 * Writes JSON as QJsonDocument does in its indented form, to the character, without a document in
 * between: ten times as fast. Whoever writes an object names its members in the order of the
 * alphabet.
 */
class IndentedJson
{
public:
    /** The text, once every container was closed; nothing is left to write to. */
    [[nodiscard]] QString take();

    void beginArray() { open(QLatin1Char('[')); }
    void endArray() { close(QLatin1Char(']')); }
    void beginObject() { open(QLatin1Char('{')); }
    void endObject() { close(QLatin1Char('}')); }

    /** The name of a member, whose value is what is written next. */
    void key(const QString &name);
    /** The same for a name that needs no escape. */
    void key(QLatin1String name);
    void write(const QString &text);
    void write(int number);
    void write(bool value);
    void write(const QStringList &texts);
    /** Any value that was read, with all that it holds. */
    void write(const QJsonValue &value);

private:
    void open(QChar bracket);
    void close(QChar bracket);
    /** What stands before a value: the comma behind the one before it, and its indentation. */
    void place();
    void indent();
    void quote(const QString &text);

    QString m_text;
    int m_depth = 0;
    bool m_isFirst = true;  ///< Nothing was written yet into the container that is open.
    bool m_isNamed = false; ///< A key was written whose value is due.
};

/**
 * One object of a record. Members that belong to others (see ObjectReader) are written where the
 * alphabet places them; of a member that others have as well theirs is written as long as the
 * record has its default there, so that what could not be read is not lost.
 */
class RecordWriter
{
public:
    RecordWriter(IndentedJson *json, const QJsonObject &others);
    ~RecordWriter();

    /** Writes the member @p key; the keys must come in the order of the alphabet. */
    template <class Value>
    void member(QLatin1String key, const Value &value)
    {
        member(key, value == Value(), [&] { m_json->write(value); });
    }
    /** Writes a member whose value @p write writes; @p isDefault when it says nothing. */
    template <class Write>
    void member(QLatin1String key, bool isDefault, const Write &write)
    {
        if (!takesOther(key, isDefault)) {
            m_json->key(key);
            write();
        }
    }

private:
    /** Writes what others have before @p key. True when it wrote their value for it as well. */
    bool takesOther(QLatin1String key, bool isDefault);
    void writeOther();

    Q_DISABLE_COPY(RecordWriter)

    IndentedJson *m_json;
    const QJsonObject m_others;
    QJsonObject::const_iterator m_next;
};

} // namespace lctrlsex
