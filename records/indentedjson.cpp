#include "indentedjson.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <utility>

namespace lctrlsex {

static bool needsEscape(QChar character)
{
    const ushort unit = character.unicode();
    return unit < ' ' || unit == '"' || unit == '\\' || (unit & 0xf800) == 0xd800;
}

/** How a character is written that cannot stand for itself in a text. */
static QString escaped(QChar character)
{
    switch (character.unicode()) {
    case '"':
        return QStringLiteral("\\\"");
    case '\\':
        return QStringLiteral("\\\\");
    case '\b':
        return QStringLiteral("\\b");
    case '\f':
        return QStringLiteral("\\f");
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        return QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
    }
}

QString IndentedJson::take()
{
    m_text += QLatin1Char('\n');
    return std::move(m_text);
}

void IndentedJson::key(const QString &name)
{
    place();
    quote(name);
    m_text += QLatin1String(": ");
    m_isNamed = true;
}

void IndentedJson::key(QLatin1String name)
{
    place();
    m_text += QLatin1Char('"');
    m_text += name;
    m_text += QLatin1String("\": ");
    m_isNamed = true;
}

void IndentedJson::write(const QString &text)
{
    place();
    quote(text);
}

void IndentedJson::write(int number)
{
    place();
    m_text += QString::number(number);
}

void IndentedJson::write(bool value)
{
    place();
    m_text += value ? QLatin1String("true") : QLatin1String("false");
}

void IndentedJson::write(const QStringList &texts)
{
    beginArray();
    for (const QString &text : texts) {
        write(text);
    }
    endArray();
}

void IndentedJson::write(const QJsonValue &value)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        beginObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            key(member.key());
            write(member.value());
        }
        endObject();
    } else if (value.isArray()) {
        const QJsonArray array = value.toArray();
        beginArray();
        for (const QJsonValue &element : array) {
            write(element);
        }
        endArray();
    } else if (value.isString()) {
        write(value.toString());
    } else {
        place();
        const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        m_text += QLatin1String(text.constData() + 1, text.size() - 2);
    }
}

void IndentedJson::open(QChar bracket)
{
    place();
    m_text += bracket;
    m_text += QLatin1Char('\n');
    ++m_depth;
    m_isFirst = true;
}

void IndentedJson::close(QChar bracket)
{
    if (!m_isFirst) {
        m_text += QLatin1Char('\n');
    }
    --m_depth;
    indent();
    m_text += bracket;
    m_isFirst = false;
}

void IndentedJson::place()
{
    if (m_isNamed) {
        m_isNamed = false;
        return;
    }
    if (!m_isFirst) {
        m_text += QLatin1String(",\n");
    }
    m_isFirst = false;
    indent();
}

void IndentedJson::indent()
{
    static const QString spaces(4 * 8, QLatin1Char(' '));
    for (int missing = 4 * m_depth; missing > 0; missing -= spaces.size()) {
        m_text.append(spaces.constData(), std::min(missing, spaces.size()));
    }
}

void IndentedJson::quote(const QString &text)
{
    m_text += QLatin1Char('"');
    const auto end = text.cend();
    auto written = text.cbegin();
    for (auto it = written; it != end; ++it) {
        if (!needsEscape(*it)) {
            continue;
        }
        // A pair of surrogates stands for itself; one alone would not survive as UTF-8.
        if (it->isHighSurrogate() && it + 1 != end && (it + 1)->isLowSurrogate()) {
            ++it;
            continue;
        }
        m_text.append(written, int(it - written));
        m_text += escaped(*it);
        written = it + 1;
    }
    m_text.append(written, int(end - written));
    m_text += QLatin1Char('"');
}

RecordWriter::RecordWriter(IndentedJson *json, const QJsonObject &others)
    : m_json(json)
    , m_others(others)
    , m_next(m_others.begin())
{
    m_json->beginObject();
}

RecordWriter::~RecordWriter()
{
    while (m_next != m_others.end()) {
        writeOther();
    }
    m_json->endObject();
}

bool RecordWriter::takesOther(QLatin1String key, bool isDefault)
{
    while (m_next != m_others.end() && m_next.key() < key) {
        writeOther();
    }
    if (m_next == m_others.end() || m_next.key() != key) {
        return false;
    }
    if (isDefault) {
        writeOther();
    } else {
        ++m_next;
    }
    return isDefault;
}

void RecordWriter::writeOther()
{
    m_json->key(m_next.key());
    m_json->write(m_next.value());
    ++m_next;
}

} // namespace lctrlsex
