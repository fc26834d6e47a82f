#include "htmltokens.h"

#include <algorithm>

namespace lctrlsex {

namespace {

// Qt gives up an entity that has no ";" among the nine characters behind the "&".
constexpr int longestEntity = 9;

bool isTagSpace(QChar c)
{
    return c.isSpace();
}

} // namespace

HtmlTokenReader::HtmlTokenReader(QStringView html)
    : m_html(html)
{}

void HtmlTokenReader::skipSpace()
{
    while (m_pos < m_html.size() && isTagSpace(m_html[m_pos]) &&
           m_html[m_pos] != QChar::ParagraphSeparator) {
        ++m_pos;
    }
}

bool HtmlTokenReader::skipPast(QChar c)
{
    const qsizetype found = m_html.indexOf(c, m_pos);
    m_pos = int(found < 0 ? m_html.size() : found + 1);
    return found >= 0;
}

bool HtmlTokenReader::next(HtmlToken &token)
{
    token.attributes.clear();
    token.selfClosed = false;
    token.terminated = true;
    token.name = QStringView();
    token.begin = m_pos;
    if (m_pos >= m_html.size()) {
        return false;
    }
    if (!at(QLatin1Char('<'))) {
        token.kind = HtmlToken::Kind::Text;
        const qsizetype tag = m_html.indexOf(QLatin1Char('<'), m_pos);
        m_pos = int(tag < 0 ? m_html.size() : tag);
        token.end = m_pos;
        return true;
    }
    ++m_pos;
    skipSpace();
    if (at(QLatin1Char('!'))) {
        token.kind = HtmlToken::Kind::Declaration;
        token.terminated = readDeclaration();
    } else if (at(QLatin1Char('/'))) {
        token.kind = HtmlToken::Kind::Close;
        ++m_pos;
        token.name = readWord().text;
        token.terminated = skipPast(QLatin1Char('>'));
    } else {
        token.kind = HtmlToken::Kind::Open;
        readOpenTag(token);
    }
    token.end = m_pos;
    return true;
}

bool HtmlTokenReader::readDeclaration()
{
    ++m_pos;
    // One "-" is enough for a comment as long as two more characters follow: so Qt reads it.
    if (at(QLatin1Char('-')) && m_pos + 2 < m_html.size()) {
        const qsizetype end = m_html.indexOf(QStringView(u"-->"), m_pos + 3);
        m_pos = int(end < 0 ? m_html.size() : end + 3);
        return end >= 0;
    }
    return skipPast(QLatin1Char('>'));
}

void HtmlTokenReader::readOpenTag(HtmlToken &token)
{
    token.name = readWord().text;
    if (m_pos < m_html.size() && isTagSpace(m_html[m_pos])) {
        readAttributes(token);
    }
    while (m_pos < m_html.size() && m_html[m_pos] != QLatin1Char('>')) {
        token.selfClosed = token.selfClosed || m_html[m_pos] == QLatin1Char('/');
        ++m_pos;
    }
    token.terminated = at(QLatin1Char('>'));
    m_pos = std::min(m_pos + 1, int(m_html.size()));
}

void HtmlTokenReader::readAttributes(HtmlToken &token)
{
    while (m_pos < m_html.size()) {
        skipSpace();
        if (at(QLatin1Char('>')) || at(QLatin1Char('/'))) {
            return;
        }
        HtmlAttribute attribute;
        attribute.begin = m_pos;
        const Word key = readWord();
        if (key.text.isEmpty()) {
            return;
        }
        attribute.key = key.text;
        attribute.quotedKey = key.quote != HtmlAttribute::Quote::None;
        attribute.end = m_pos;
        skipSpace();
        if (at(QLatin1Char('='))) {
            ++m_pos;
            skipSpace();
            const Word value = readWord();
            attribute.value = value.text;
            attribute.quote = value.quote;
            attribute.end = m_pos;
            if (value.text.isEmpty()) {
                continue;
            }
        }
        token.attributes.push_back(attribute);
    }
}

HtmlTokenReader::Word HtmlTokenReader::readWord()
{
    const bool twice = at(QLatin1Char('"'));
    if (!twice && !at(QLatin1Char('\''))) {
        return readPlainWord();
    }
    const QChar quote = m_html[m_pos];
    const int begin = ++m_pos;
    qsizetype end = m_html.indexOf(quote, m_pos);
    // Inside single quotes a backslash protects the quote; inside double quotes it does not.
    while (!twice && end > 0 && m_html[end - 1] == QLatin1Char('\\')) {
        end = m_html.indexOf(quote, end + 1);
    }
    m_pos = int(end < 0 ? m_html.size() : end);
    const QStringView text = m_html.mid(begin, m_pos - begin);
    m_pos = std::min(m_pos + 1, int(m_html.size()));
    return {text, twice ? HtmlAttribute::Quote::Double : HtmlAttribute::Quote::Single};
}

HtmlTokenReader::Word HtmlTokenReader::readPlainWord()
{
    const int begin = m_pos;
    const int size = int(m_html.size());
    for (; m_pos < size; ++m_pos) {
        const QChar c = m_html[m_pos];
        // A "/" ends the word only before a ">" that is not the last character of the text.
        const bool slashEnd =
            c == QLatin1Char('/') && m_pos + 2 < size && m_html[m_pos + 1] == QLatin1Char('>');
        if (c == QLatin1Char('>') || c == QLatin1Char('<') || c == QLatin1Char('=') || slashEnd ||
            isTagSpace(c)) {
            break;
        }
    }
    return {m_html.mid(begin, m_pos - begin), HtmlAttribute::Quote::None};
}

HtmlEntity readEntity(QStringView html, int pos)
{
    const int last = std::min(int(html.size()), pos + 1 + longestEntity);
    int end = pos + 1;
    while (end < last && html[end] != QLatin1Char(';')) {
        if (html[end].isSpace()) {
            return {};
        }
        ++end;
    }
    if (end >= last || end == pos + 1) {
        return {};
    }
    const QStringView name = html.mid(pos + 1, end - pos - 1);
    const int length = end + 1 - pos;
    if (name[0] == QLatin1Char('#')) {
        const bool hexadecimal = name.size() > 1 && name[1].toLower() == QLatin1Char('x');
        bool ok = false;
        const uint code =
            name.mid(hexadecimal ? 2 : 1).toString().toUInt(&ok, hexadecimal ? 16 : 10);
        return ok ? HtmlEntity{length, code} : HtmlEntity{};
    }
    static const struct
    {
        QLatin1String name;
        uint code;
    } known[] = {{QLatin1String("amp"), '&'},   {QLatin1String("lt"), '<'},
                 {QLatin1String("gt"), '>'},    {QLatin1String("quot"), '"'},
                 {QLatin1String("apos"), '\''}, {QLatin1String("nbsp"), 0xa0}};
    for (const auto &entity : known) {
        if (name == entity.name) {
            return {length, entity.code};
        }
    }
    const bool isName = std::all_of(name.begin(), name.end(), [](QChar c) {
        return c.isLetterOrNumber() && c.unicode() < 0x80;
    });
    return isName ? HtmlEntity{length, QChar::ReplacementCharacter} : HtmlEntity{};
}

QString decodeEntities(QStringView value)
{
    QString text;
    text.reserve(int(value.size()));
    for (int i = 0; i < value.size();) {
        const HtmlEntity entity =
            value[i] == QLatin1Char('&') ? readEntity(value, i) : HtmlEntity{};
        if (entity.length == 0) {
            text += value[i++];
            continue;
        }
        text += entity.code > 0xffff ? QChar(QChar::ReplacementCharacter) : QChar(entity.code);
        i += entity.length;
    }
    return text;
}

QString attributeText(const HtmlAttribute &attribute)
{
    if (attribute.value.isNull()) {
        return QStringLiteral("1");
    }
    const bool raw = attribute.quote == HtmlAttribute::Quote::Single ||
                     !attribute.value.contains(QLatin1Char('&'));
    return raw ? attribute.value.toString() : decodeEntities(attribute.value);
}

QString quotedAttributeText(const QString &text)
{
    QString quoted = text;
    quoted.replace(QLatin1Char('&'), QLatin1String("&amp;"));
    quoted.replace(QLatin1Char('"'), QLatin1String("&quot;"));
    return quoted;
}

} // namespace lctrlsex
