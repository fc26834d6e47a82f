#include "templatetext.h"

#include "htmltokens.h"
#include "table/fieldformat.h"

#include <algorithm>

namespace player {

using namespace lctrlsex;

namespace {

constexpr int LongestName = 200;

/** Whether a character may stand in HTML as it is; surrogates are looked at in pairs. */
bool isPlain(ushort c)
{
    if (c < 0x80) {
        return c >= 0x20 ? c != '&' && c != '<' && c != '>' && c != '"' : c == '\t';
    }
    return (c < 0xd800 && c != QChar::LineSeparator && c != QChar::ParagraphSeparator) ||
           (c >= 0xe000 && c < 0xfffc) || c == 0xfffd;
}

/** Appends the character at @p i, which is not plain; how many code units it takes. */
int appendOdd(QString *html, const QString &value, int i)
{
    const QChar c = value.at(i);
    switch (c.unicode()) {
    case '&':
        *html += QLatin1String("&amp;");
        return 1;
    case '<':
        *html += QLatin1String("&lt;");
        return 1;
    case '>':
        *html += QLatin1String("&gt;");
        return 1;
    case '"':
        *html += QLatin1String("&quot;");
        return 1;
    case '\r':
    case '\n':
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
        *html += QLatin1String("<br/>");
        return value.midRef(i, 2) == QLatin1String("\r\n") ? 2 : 1;
    default:
        break;
    }
    if (c.isHighSurrogate() && i + 1 < value.size() && value.at(i + 1).isLowSurrogate()) {
        html->append(value.constData() + i, 2);
        return 2;
    }
    html->append(QChar(QChar::ReplacementCharacter));
    return 1;
}

bool isNamed(const HtmlToken &token, QLatin1String name)
{
    return token.name.compare(name, Qt::CaseInsensitive) == 0;
}

const HtmlAttribute *attributeOf(const HtmlToken &tag, QLatin1String key)
{
    for (const HtmlAttribute &attribute : tag.attributes) {
        if (attribute.key.compare(key, Qt::CaseInsensitive) == 0) {
            return &attribute;
        }
    }
    return nullptr;
}

QString valueOf(const HtmlToken &tag, QLatin1String key)
{
    const HtmlAttribute *attribute = attributeOf(tag, key);
    return attribute != nullptr ? attributeText(*attribute) : QString();
}

} // namespace

void appendValue(QString *html, const QString &value)
{
    int size = value.size();
    if (size > LongestValue) {
        size = value.at(LongestValue - 1).isHighSurrogate() ? LongestValue - 1 : LongestValue;
    }
    int done = 0;
    for (int i = 0; i < size;) {
        if (isPlain(value.at(i).unicode())) {
            ++i;
            continue;
        }
        html->append(value.constData() + done, i - done);
        i += appendOdd(html, value, i);
        done = i;
    }
    if (done < size) {
        html->append(value.constData() + done, size - done);
    }
    if (size < value.size()) {
        *html += QChar(0x2026);
    }
}

void appendValue(QString *html, std::string_view utf8)
{
    const bool isPlainAscii =
        utf8.size() <= LongestValue && std::all_of(utf8.begin(), utf8.end(), [](char c) {
            return uchar(c) < 0x80 && isPlain(uchar(c));
        });
    if (isPlainAscii) { // as it is, without a text of its own
        html->append(QLatin1String(utf8.data(), int(utf8.size())));
    } else {
        appendValue(html, QString::fromUtf8(utf8.data(), int(utf8.size())));
    }
}

QString shownText(const QString &value)
{
    const QString html =
        escapedValue(value).replace(QLatin1String("<br/>"), QString(QChar(QChar::LineSeparator)));
    return decodeEntities(html);
}

QString escapedValue(const QString &value)
{
    QString html;
    appendValue(&html, value);
    return html;
}

/** Reads markup into a TemplateText. */
class TemplateReader
{
public:
    TemplateReader(TemplateText *text, int offset, int line, int number, bool hasWidths)
        : m_text(text)
        , m_markup(text->m_markup)
        , m_done(offset)
        , m_offset(offset)
        , m_line(line)
        , m_number(number)
        , m_hasWidths(hasWidths)
    {}

    int run()
    {
        const QStringView part = QStringView(m_markup).mid(m_offset);
        HtmlTokenReader reader(part);
        HtmlToken token;
        while (reader.next(token)) {
            token.begin += m_offset;
            token.end += m_offset;
            if (token.kind == HtmlToken::Kind::Text) {
                readText(token.begin, token.end);
            } else if (isNamed(token, QLatin1String("a"))) {
                readLink(token);
            } else if (token.kind == HtmlToken::Kind::Open &&
                       isNamed(token, QLatin1String("img"))) {
                readImage(token);
            } else if (token.kind == HtmlToken::Kind::Open && isNamed(token, QLatin1String("td"))) {
                readCell(token);
            }
        }
        literal(m_markup.size());
        return m_number;
    }

private:
    using Piece = TemplateText::Piece;

    /** Everything up to @p end that was not read yet stays as it is. */
    void literal(int end)
    {
        if (end > m_done) {
            m_text->m_pieces.append({Piece::Literal, 0, m_done, end});
            m_text->m_literalLength += end - m_done;
        }
        m_done = end;
    }

    void readText(int begin, int end)
    {
        const bool isStyled = m_style >= 0;
        if (isStyled) {
            literal(begin);
            m_text->m_pieces.append({Piece::StyleBegin, m_style, begin, begin});
        }
        const QStringView text = QStringView(m_markup).mid(begin, end - begin);
        int at = 0;
        while ((at = int(text.indexOf(QStringView(u"${"), at))) >= 0) {
            const int close = int(text.indexOf(QLatin1Char('}'), at));
            if (close < 0) {
                break;
            }
            if (close - at - 2 > LongestName || m_text->m_slots.size() >= TemplateText::MostSlots) {
                at += 2;
                continue;
            }
            literal(begin + at);
            addSlot(begin + at, begin + close + 1, at == 0 && close + 1 == text.size());
            at = close + 1;
        }
        if (isStyled) {
            literal(end);
            m_text->m_pieces.append({Piece::StyleEnd, m_style, end, end});
        }
    }

    void addSlot(int begin, int end, bool isAlone)
    {
        TemplateSlot slot;
        slot.name = decodeEntities(QStringView(m_markup).mid(begin + 2, end - begin - 3));
        slot.line = m_line;
        slot.isAlone = isAlone;
        if (slot.name == QLatin1String("i")) {
            slot.number = m_number++;
        }
        const int index = m_text->m_slots.size();
        if (m_style >= 0 && m_text->m_styles.at(m_style).slot < 0) {
            m_text->m_styles[m_style].slot = index;
        }
        m_text->m_slots.append(slot);
        m_text->m_pieces.append({Piece::Slot, index, begin, end});
        m_done = end;
    }

    /** The tags of a link to a style are left out, and with them the look of a link. */
    void readLink(const HtmlToken &token)
    {
        const bool isEnd = token.kind == HtmlToken::Kind::Close;
        const QStringList parts =
            isEnd ? QStringList() : valueOf(token, QLatin1String("href")).split(QLatin1Char(';'));
        if (parts.value(0) == QLatin1String("bindStyle")) {
            m_style = m_text->m_styles.size();
            m_text->m_styles.append({parts.value(1), -1, m_line});
        } else if (isEnd && m_style >= 0) {
            m_style = -1;
        } else {
            return;
        }
        literal(token.begin);
        m_done = token.end;
    }

    void readImage(const HtmlToken &token)
    {
        const HtmlAttribute *src = attributeOf(token, QLatin1String("src"));
        const QString name = src != nullptr ? attributeText(*src) : QString();
        const QString title = valueOf(token, QLatin1String("title"));
        const QString key = title.isEmpty() ? fieldKey(name) : title;
        if (!name.startsWith(QLatin1String("data://bindKey/")) || fieldKey(name).isEmpty()) {
            return;
        }
        TemplateImage image;
        image.key = key;
        image.style = valueOf(token, QLatin1String("alt"));
        image.line = m_line;
        if (m_style >= 0) {
            FieldStyle style = FieldStyle::fromString(image.style);
            if (style.conditionId.isEmpty()) {
                style.conditionId = m_text->m_styles.at(m_style).id;
                image.style = style.toString();
            }
        }
        image.before = m_markup.mid(token.begin, m_offset + src->begin - token.begin);
        image.after = m_markup.mid(m_offset + src->end, token.end - m_offset - src->end);
        literal(token.begin);
        m_text->m_pieces.append({Piece::Image, m_text->m_images.size(), token.begin, token.end});
        m_text->m_images.append(image);
        m_done = token.end;
    }

    void readCell(const HtmlToken &token)
    {
        if (m_hasWidths) {
            const HtmlAttribute *width = attributeOf(token, QLatin1String("width"));
            int place = token.end - (token.selfClosed ? 2 : 1);
            if (width != nullptr) {
                place = m_offset + width->begin;
                place -= m_markup.at(place - 1).isSpace() ? 1 : 0; // the new one has its own
            }
            literal(place);
            m_text->m_pieces.append({Piece::CellWidth, m_text->m_cells, place, place});
            m_done = width != nullptr ? m_offset + width->end : place;
        }
        ++m_text->m_cells;
    }

    TemplateText *m_text;
    const QString &m_markup;
    int m_done;
    const int m_offset;
    const int m_line;
    int m_number;
    const bool m_hasWidths;
    int m_style = -1;
};

int TemplateText::append(const QString &markup, int line, int number, bool hasWidths)
{
    const int offset = m_markup.size();
    m_markup += markup;
    return TemplateReader(this, offset, line, number, hasWidths).run();
}

} // namespace player
