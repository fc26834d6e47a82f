#include "strictmarkup.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace lctrlsex {

namespace {

constexpr size_t MostOpenElements = 1000;
constexpr ushort FirstForbidden = 0xfffe; // a parser takes both that are left for the end

/** The bit of a character that a search stops at; below 64, as all that matter are. */
constexpr quint64 stopAt(ushort c)
{
    return quint64(1) << c;
}

/** The first character of those in @p stops, or forbidden; else @p end. */
const ushort *nextStop(const ushort *at, const ushort *end, quint64 stops)
{
    for (; at < end; ++at) {
        if (*at < 64 ? (stops >> *at & 1) != 0 : *at >= FirstForbidden) {
            break;
        }
    }
    return at;
}

// Objects, so that what searches with them is not called for every character.
constexpr auto isSpace = [](ushort c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
};

constexpr auto isLetter = [](ushort c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
};

constexpr auto isDigit = [](ushort c) {
    return c >= '0' && c <= '9';
};

constexpr auto isHexadecimal = [](ushort c) {
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
};

constexpr auto isNamePart = [](ushort c) {
    return isLetter(c) || isDigit(c) || c == '_' || c == ':' || c == '-' || c == '.';
};

} // namespace

StrictMarkupReader::StrictMarkupReader(QStringView markup)
    : m_begin(reinterpret_cast<const ushort *>(markup.utf16()))
    , m_end(m_begin + markup.size())
    , m_at(m_begin)
{}

bool StrictMarkupReader::next(MarkupTag &tag)
{
    while (skipText()) {
        if (m_at == m_end) {
            m_isComplete = m_hasRoot && m_open.empty();
            return false;
        }
        tag.begin = int(m_at - m_begin);
        ++m_at;
        const ushort kind = m_at < m_end ? *m_at : 0;
        if (kind == '!' || kind == '?') {
            if (kind == '!' ? skipMarked() : skipInstruction()) {
                continue;
            }
            return false;
        }
        const bool isRead = kind == '/' ? readClosing(tag) : readOpening(tag);
        tag.end = int(m_at - m_begin);
        return isRead;
    }
    return false;
}

bool StrictMarkupReader::startsWith(QLatin1String text) const
{
    return m_end - m_at >= text.size() && std::equal(text.begin(), text.end(), m_at);
}

/** Moves to the next tag; beside the root nothing but blanks may stand. */
bool StrictMarkupReader::skipText()
{
    if (m_open.empty()) {
        m_at = std::find_if_not(m_at, m_end, isSpace);
        return m_at == m_end || *m_at == '<';
    }
    constexpr quint64 stops = stopAt('<') | stopAt('&') | stopAt('>');
    while ((m_at = nextStop(m_at, m_end, stops)) < m_end && *m_at != '<') {
        // Two brackets before it end a section that was never begun.
        const bool isEnd = *m_at == '>' && m_at - m_begin > 1 && m_at[-1] == ']' && m_at[-2] == ']';
        if (isEnd || *m_at >= FirstForbidden || (*m_at == '&' && !skipEntity())) {
            return false;
        }
        ++m_at;
    }
    return true;
}

/** Moves from a "&" to the ";" that belongs to it. */
bool StrictMarkupReader::skipEntity()
{
    const auto of = [this](auto isPart) {
        const ushort *const first = ++m_at;
        m_at = std::find_if_not(m_at, m_end, isPart);
        return m_at > first && m_at < m_end && *m_at == ';';
    };
    ++m_at;
    if (m_at < m_end && *m_at == '#') {
        const bool isHex = m_at + 1 < m_end && m_at[1] == 'x';
        m_at += isHex ? 1 : 0;
        return isHex ? of(isHexadecimal) : of(isDigit);
    }
    if (m_at == m_end || !isLetter(*m_at)) {
        return false;
    }
    --m_at;
    return of([](ushort c) { return isLetter(c) || isDigit(c); });
}

/** Whether there was any. */
bool StrictMarkupReader::skipSpace()
{
    const ushort *const first = m_at;
    m_at = std::find_if_not(m_at, m_end, isSpace);
    return m_at > first;
}

bool StrictMarkupReader::skipName()
{
    if (m_at == m_end || !(isLetter(*m_at) || *m_at == '_' || *m_at == ':')) {
        return false;
    }
    m_at = std::find_if_not(m_at, m_end, isNamePart);
    return true;
}

/** A value in its quotes. */
bool StrictMarkupReader::skipValue()
{
    if (m_at == m_end || (*m_at != '"' && *m_at != '\'')) {
        return false;
    }
    const ushort quote = *m_at++;
    const quint64 stops = stopAt('<') | stopAt('&') | stopAt(quote);
    while ((m_at = nextStop(m_at, m_end, stops)) < m_end) {
        if (*m_at == quote) {
            ++m_at;
            return true;
        }
        if (*m_at != '&' || !skipEntity()) {
            return false;
        }
        ++m_at;
    }
    return false;
}

bool StrictMarkupReader::skipPast(QLatin1String end)
{
    const ushort *const found = std::search(m_at, m_end, end.begin(), end.end());
    const bool isFound =
        found < m_end && std::all_of(m_at, found, [](ushort c) { return c < FirstForbidden; });
    m_at = isFound ? found + end.size() : m_at;
    return isFound;
}

/** Moves to what ends the tag. */
bool StrictMarkupReader::readAttributes()
{
    m_at = std::find_if_not(m_at, m_end, isSpace);
    while (m_at < m_end && *m_at != '>' && *m_at != '/') {
        if (!skipName()) {
            return false;
        }
        m_at = std::find_if_not(m_at, m_end, isSpace);
        if (m_at == m_end || *m_at++ != '=') {
            return false;
        }
        m_at = std::find_if_not(m_at, m_end, isSpace);
        if (!skipValue()) {
            return false;
        }
        m_at = std::find_if_not(m_at, m_end, isSpace);
    }
    return m_at < m_end;
}

bool StrictMarkupReader::readOpening(MarkupTag &tag)
{
    const ushort *const name = m_at;
    if ((m_open.empty() && m_hasRoot) || !skipName()) {
        return false;
    }
    tag.name = QStringView(name, m_at - name);
    if (!readAttributes()) {
        return false;
    }
    const bool isEmpty = *m_at == '/';
    m_at += isEmpty ? 1 : 0;
    if (m_at == m_end || *m_at != '>' || m_open.size() == MostOpenElements) {
        return false;
    }
    ++m_at;
    m_hasRoot = true;
    tag.kind = isEmpty ? MarkupTag::Kind::Empty : MarkupTag::Kind::Open;
    if (!isEmpty) {
        m_open.push_back(tag.name);
    }
    return true;
}

bool StrictMarkupReader::readClosing(MarkupTag &tag)
{
    const ushort *const name = ++m_at;
    if (!skipName() || m_open.empty()) {
        return false;
    }
    tag.kind = MarkupTag::Kind::Close;
    tag.name = QStringView(name, m_at - name);
    m_at = std::find_if_not(m_at, m_end, isSpace);
    if (m_at == m_end || *m_at != '>' || tag.name != m_open.back()) {
        return false;
    }
    ++m_at;
    m_open.pop_back();
    return true;
}

QStringView markupAttribute(QStringView markup, const MarkupTag &tag, QLatin1String name)
{
    QStringView rest =
        markup.mid(tag.begin + 1 + tag.name.size(), tag.end - tag.begin - 1 - tag.name.size());
    for (;;) {
        const qsizetype assigned = rest.indexOf(QLatin1Char('='));
        if (assigned < 0) {
            return {};
        }
        const QStringView key = rest.left(assigned).trimmed();
        rest = rest.mid(assigned + 1).trimmed();
        const qsizetype end = rest.indexOf(rest.front(), 1);
        if (key == name) {
            return rest.mid(1, end - 1);
        }
        rest = rest.mid(end + 1);
    }
}

MarkupError markupError(const QString &markup)
{
    QXmlStreamReader parser(markup);
    while (!parser.atEnd()) {
        parser.readNext();
    }
    const QString message =
        parser.hasError() ? parser.errorString() : QStringLiteral("unexpected markup");
    return {parser.lineNumber(), parser.columnNumber(), message};
}

} // namespace lctrlsex
