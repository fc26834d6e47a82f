#include "jsonlist.h"
#include "jsonplace.h"
#include "reply.h"
#include "sourcetexts.h"
#include "textdecoding.h"

#include <QStringView>

#include <cmath>
#include <cstdlib>
#include <cstring>

namespace sources {

namespace {

constexpr int Deepest = 200;

/** Half a character, which only an escape can make, is none. */
void replaceLoneSurrogates(QString *text)
{
    for (int i = 0; i < text->size(); ++i) {
        const QChar c = text->at(i);
        const bool isPair =
            c.isHighSurrogate() && i + 1 < text->size() && text->at(i + 1).isLowSurrogate();
        if (isPair) {
            ++i;
        } else if (c.isSurrogate()) {
            (*text)[i] = QChar::ReplacementCharacter;
        }
    }
}

/**
 * Reads JSON straight into values. Not QJsonDocument, which sorts the members of an object and
 * keeps 12.50 as 12.5: screens show what was written.
 */
class JsonText
{
public:
    explicit JsonText(const QByteArray &text)
        : m_text(text)
        , m_at(text.constData())
        , m_end(m_at + text.size())
    {}

    [[nodiscard]] Reply read()
    {
        Reply reply;
        DataValue value = readValue(0);
        if (m_reason.isEmpty() && peek() != '\0') {
            fail(SourceTexts::tr("something follows behind the end"));
        }
        if (!m_reason.isEmpty()) {
            const TextPlace place = placeOfOffset(m_text, int(m_at - m_text.constData()));
            reply.error = SourceTexts::tr("line %1, column %2: %3")
                              .arg(place.line)
                              .arg(place.column)
                              .arg(m_reason);
        } else if (value.kind() == DataValue::Kind::Record) {
            reply.value = value;
        } else {
            const bool isList = value.kind() == DataValue::Kind::List;
            reply.value = DataValue::fromRecord(
                {{isList ? QStringLiteral("rows") : QStringLiteral("value"), value}});
        }
        return reply;
    }

private:
    [[nodiscard]] char peek()
    {
        while (m_at < m_end && (*m_at == ' ' || *m_at == '\n' || *m_at == '\t' || *m_at == '\r')) {
            ++m_at;
        }
        return m_at < m_end ? *m_at : '\0';
    }
    bool take(char c)
    {
        const bool isThere = peek() == c;
        m_at += isThere ? 1 : 0;
        return isThere;
    }
    DataValue fail(const QString &reason)
    {
        if (m_reason.isEmpty()) {
            m_reason = reason;
        }
        return DataValue();
    }
    DataValue failHere()
    {
        return fail(peek() == '\0' && m_at == m_end ? SourceTexts::tr("the text ends too early")
                                                    : SourceTexts::tr("this is no JSON"));
    }

    DataValue readValue(int depth)
    {
        if (depth > Deepest) {
            return fail(SourceTexts::tr("it is nested too deeply"));
        }
        switch (peek()) {
        case '{':
            return readRecord(depth);
        case '[':
            return readList(depth);
        case '"':
            return DataValue::fromText(readText());
        case 't':
            return readWord("true", true);
        case 'f':
            return readWord("false", true);
        case 'n':
            return readWord("null", false);
        default:
            return readNumber();
        }
    }

    DataValue readRecord(int depth)
    {
        QVector<DataValue::Member> members;
        ++m_at;
        if (take('}')) {
            return DataValue::fromRecord(members);
        }
        do {
            if (peek() != '"') {
                return failHere();
            }
            const QString name = readText();
            if (!take(':')) {
                return failHere();
            }
            DataValue value = readValue(depth + 1);
            if (!m_reason.isEmpty()) {
                return value;
            }
            members.append({name, value});
        } while (take(','));
        return take('}') ? DataValue::fromRecord(std::move(members)) : failHere();
    }

    DataValue readList(int depth)
    {
        JsonList list;
        ++m_at;
        if (take(']')) {
            return list.take();
        }
        do {
            DataValue value = readValue(depth + 1);
            if (!m_reason.isEmpty()) {
                return value;
            }
            list.append(value);
        } while (take(','));
        return take(']') ? list.take() : failHere();
    }

    DataValue readWord(const char *word, bool isText)
    {
        const size_t length = std::strlen(word);
        if (size_t(m_end - m_at) < length || std::memcmp(m_at, word, length) != 0) {
            return failHere();
        }
        m_at += length;
        return isText ? DataValue::fromText(QString::fromLatin1(word)) : DataValue();
    }

    DataValue readNumber()
    {
        const char *const start = m_at;
        const auto digits = [this] {
            const char *const first = m_at;
            while (m_at < m_end && *m_at >= '0' && *m_at <= '9') {
                ++m_at;
            }
            return m_at - first;
        };
        const auto takes = [this](const char *characters) {
            const bool isOne = m_at < m_end && std::strchr(characters, *m_at) != nullptr;
            m_at += isOne ? 1 : 0;
            return isOne;
        };
        takes("-");
        const bool startsWithNull = m_at < m_end && *m_at == '0';
        const auto whole = digits();
        bool isNumber = whole == 1 || (whole > 1 && !startsWithNull);
        if (isNumber && takes(".")) {
            isNumber = digits() > 0;
        }
        if (isNumber && takes("eE")) {
            takes("+-");
            isNumber = digits() > 0;
        }
        if (!isNumber) {
            return failHere();
        }
        const QByteArray written(start, int(m_at - start));
        if (!std::isfinite(std::strtod(written.constData(), nullptr))) {
            m_at = start;
            return fail(SourceTexts::tr("the number is too large"));
        }
        return DataValue::fromText(QString::fromLatin1(written));
    }

    /** A text in quotes; never null. */
    QString readText()
    {
        QString text = QStringLiteral("");
        const char *start = ++m_at;
        while (m_at < m_end && *m_at != '"') {
            if (uchar(*m_at) < 0x20) {
                fail(SourceTexts::tr("a text holds a control character"));
                return text;
            }
            if (*m_at != '\\') {
                ++m_at;
                continue;
            }
            text += QString::fromUtf8(start, int(m_at - start));
            ++m_at;
            if (!readEscape(&text)) {
                return text;
            }
            start = m_at;
        }
        if (m_at == m_end) {
            failHere();
            return text;
        }
        text += QString::fromUtf8(start, int(m_at - start));
        ++m_at;
        if (!text.isValidUtf16()) {
            replaceLoneSurrogates(&text);
        }
        return text;
    }

    bool readEscape(QString *text)
    {
        static const char names[] = "\"\\/bfnrt";
        static const char meanings[] = "\"\\/\b\f\n\r\t";
        const char c = m_at < m_end ? *m_at : '\0';
        const char *const found = c != '\0' ? std::strchr(names, c) : nullptr;
        if (found != nullptr) {
            text->append(QLatin1Char(meanings[found - names]));
            ++m_at;
            return true;
        }
        bool isNumber = false;
        const QByteArray digits(m_at + (c == 'u' ? 1 : 0), int(qMin<qint64>(4, m_end - m_at - 1)));
        const ushort code = c == 'u' && digits.size() == 4 && !digits.contains('+') &&
                                    !digits.contains('-') && !digits.contains(' ')
                                ? digits.toUShort(&isNumber, 16)
                                : 0;
        if (!isNumber || digits.contains('x') || digits.contains('X')) {
            failHere();
            return false;
        }
        text->append(code == 0 ? QChar(QChar::ReplacementCharacter) : QChar(code));
        m_at += 5;
        return true;
    }

    const QByteArray m_text;
    const char *m_at;
    const char *const m_end;
    QString m_reason;
};

} // namespace

Reply parseJson(const QByteArray &bytes)
{
    const bool hasMark = bytes.startsWith("\xEF\xBB\xBF");
    const QByteArray text = hasMark ? bytes.mid(3) : bytes;
    Reply reply = JsonText(text).read();
    if (reply.error.isEmpty() && !isCleanUtf8(text)) {
        reply.value = DataValue();
        reply.error = SourceTexts::tr("the text is not UTF-8");
    }
    return reply;
}

} // namespace sources
