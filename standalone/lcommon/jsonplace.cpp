#include "jsonplace.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

namespace {

/** Walks over a JSON text that is known to be well formed. */
class Walker
{
public:
    explicit Walker(const QByteArray &json)
        : m_json(json)
    {
        skipBlanks();
    }

    [[nodiscard]] int offset() const { return m_at; }

    /** Stands on the value of the last member called @p name afterwards, as parsers take it. */
    bool enterMember(const QString &name)
    {
        if (current() != '{') {
            return false;
        }
        int found = -1;
        next();
        while (m_at < m_json.size() && current() != '}') {
            const QString member = readString();
            next(); // the colon
            if (member == name) {
                found = m_at;
            }
            skipValue();
            if (current() == ',') {
                next();
            }
        }
        m_at = found >= 0 ? found : m_at;
        return found >= 0;
    }

    bool enterElement(int position)
    {
        if (current() != '[') {
            return false;
        }
        next();
        for (int i = 0; i < position && current() != ']' && m_at < m_json.size(); ++i) {
            skipValue();
            if (current() == ',') {
                next();
            }
        }
        return current() != ']';
    }

private:
    [[nodiscard]] char current() const { return m_at < m_json.size() ? m_json.at(m_at) : '\0'; }

    void next()
    {
        ++m_at;
        skipBlanks();
    }

    void skipBlanks()
    {
        while (m_at < m_json.size() && (current() <= ' ' && current() >= 0)) {
            ++m_at;
        }
    }

    void skipString()
    {
        ++m_at;
        while (m_at < m_json.size() && current() != '"') {
            m_at += current() == '\\' ? 2 : 1;
        }
        next();
    }

    QString readString()
    {
        const int start = m_at;
        skipString();
        const QByteArray quoted = m_json.mid(start, m_at - start).trimmed();
        const QByteArray wrapped = "{\"\":" + quoted + "}";
        return QJsonDocument::fromJson(wrapped).object().value(QString()).toString();
    }

    void skipValue()
    {
        int depth = 0;
        do {
            const char c = current();
            if (c == '"') {
                skipString();
                continue;
            }
            if (c == '{' || c == '[') {
                ++depth;
            } else if (c == '}' || c == ']') {
                --depth;
            } else if (depth == 0 && c != ',') {
                skipScalar();
                continue;
            }
            next();
        } while (depth > 0 && m_at < m_json.size());
    }

    void skipScalar()
    {
        while (m_at < m_json.size() && qstrchr(",]} \t\r\n", current()) == nullptr) {
            ++m_at;
        }
        skipBlanks();
    }

    static const char *qstrchr(const char *text, char c)
    {
        for (; *text != '\0'; ++text) {
            if (*text == c) {
                return text;
            }
        }
        return nullptr;
    }

    const QByteArray &m_json;
    int m_at = 0;
};

} // namespace

JsonPath JsonPath::key(const QString &name) const
{
    JsonPath path = *this;
    path.m_steps.append({name, -1});
    return path;
}

JsonPath JsonPath::index(int position) const
{
    JsonPath path = *this;
    path.m_steps.append({QString(), position});
    return path;
}

QString JsonPath::text() const
{
    QString text;
    for (const Step &step : m_steps) {
        if (step.position >= 0) {
            text += QLatin1Char('[') + QString::number(step.position) + QLatin1Char(']');
        } else {
            text += (text.isEmpty() ? QString() : QStringLiteral(".")) + step.name;
        }
    }
    return text;
}

TextPlace placeOfOffset(const QByteArray &bytes, int offset)
{
    const int end = qBound(0, offset, bytes.size());
    const int lineStart = end == 0 ? 0 : bytes.lastIndexOf('\n', end - 1) + 1;
    TextPlace place;
    place.line = bytes.left(lineStart).count('\n') + 1;
    place.column = QString::fromUtf8(bytes.mid(lineStart, end - lineStart)).size() + 1;
    return place;
}

TextPlace placeOfValue(const QByteArray &json, const JsonPath &path)
{
    Walker walker(json);
    int offset = walker.offset();
    for (const JsonPath::Step &step : path.steps()) {
        const bool entered =
            step.position >= 0 ? walker.enterElement(step.position) : walker.enterMember(step.name);
        if (!entered) {
            break;
        }
        offset = walker.offset();
    }
    return placeOfOffset(json, offset);
}
