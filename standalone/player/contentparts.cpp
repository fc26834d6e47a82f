#include "contentparts.h"

#include "htmltokens.h"

#include <QVector>

namespace player {

using namespace lctrlsex;

namespace {

constexpr int MostSpan = 1000;

bool isNamed(const HtmlToken &token, const char *name)
{
    return token.name.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
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

double numberOf(const HtmlToken &tag, QLatin1String key, double fallback)
{
    const HtmlAttribute *attribute = attributeOf(tag, key);
    bool isNumber = false;
    const double number = attribute != nullptr ? attributeText(*attribute).toDouble(&isNumber) : 0;
    return isNumber && number >= 0 && number < 1e6 ? number : fallback;
}

/** Finds the table around a position and its rows. */
class TableFinder
{
public:
    TableFinder(const QString &content, int place)
        : m_content(content)
        , m_place(place)
    {}

    ContentParts run()
    {
        HtmlTokenReader reader(m_content);
        HtmlToken token;
        while (!m_parts.isFound && reader.next(token)) {
            const bool isOpen = token.kind == HtmlToken::Kind::Open;
            if (isOpen && isNamed(token, "body") && m_bodyEnd == 0) {
                m_bodyEnd = token.end;
            } else if (isNamed(token, "table") && isOpen) {
                openTable(token);
            } else if (isNamed(token, "table") && token.kind == HtmlToken::Kind::Close) {
                closeTable(token);
            } else if (m_depth == 1 && isNamed(token, "tr")) {
                readRow(token, isOpen);
            }
        }
        return m_parts;
    }

private:
    void openTable(const HtmlToken &token)
    {
        if (++m_depth > 1) {
            return;
        }
        m_tableBegin = token.begin;
        m_parts = ContentParts();
        m_parts.tableTag = m_content.mid(token.begin, token.end - token.begin);
        m_rowBegin = -1;
    }

    void readRow(const HtmlToken &token, bool isOpen)
    {
        endRow(isOpen ? token.begin : token.end);
        m_rowBegin = isOpen ? token.begin : -1;
    }

    void endRow(int end)
    {
        if (m_rowBegin >= 0) {
            QStringList &rows = m_rowBegin < m_place ? m_parts.rowsBefore : m_parts.rowsBehind;
            rows.append(m_content.mid(m_rowBegin, end - m_rowBegin));
        }
    }

    void closeTable(const HtmlToken &token)
    {
        m_depth = qMax(0, m_depth - 1);
        if (m_depth > 0 || m_place < m_tableBegin || m_place > token.begin) {
            return;
        }
        endRow(token.begin);
        m_parts.isFound = true;
        m_parts.head = m_content.left(m_bodyEnd);
        m_parts.prologue = m_content.mid(m_bodyEnd, m_tableBegin - m_bodyEnd);
        m_parts.epilogue = m_content.mid(token.end);
    }

    const QString &m_content;
    const int m_place;
    ContentParts m_parts;
    int m_bodyEnd = 0;
    int m_tableBegin = 0;
    int m_rowBegin = -1;
    int m_depth = 0;
};

} // namespace

ContentParts ContentParts::of(const QString &content, const QString &token)
{
    const int place =
        token.isEmpty() ? -1 : content.indexOf(QLatin1String("${") + token + QLatin1Char('}'));
    return place < 0 ? ContentParts() : TableFinder(content, place).run();
}

QVector<CellMarkup> cellsOf(const QString &row)
{
    QVector<CellMarkup> cells;
    HtmlTokenReader reader(row);
    HtmlToken token;
    int depth = 0;
    while (reader.next(token)) {
        const bool isOpen = token.kind == HtmlToken::Kind::Open;
        if (isNamed(token, "table") && token.kind != HtmlToken::Kind::Text) {
            depth += isOpen ? 1 : -1;
        } else if (depth == 0 && isNamed(token, "td")) {
            if (isOpen) {
                const double columns = numberOf(token, QLatin1String("colspan"), 1);
                const double rows = numberOf(token, QLatin1String("rowspan"), 1);
                cells.append({token.begin, row.size(), token.end, qBound(1, int(columns), MostSpan),
                              qBound(1, int(rows), MostSpan),
                              numberOf(token, QLatin1String("width"), -1)});
            } else if (!cells.isEmpty()) {
                cells.last().end = token.end;
            }
        }
    }
    return cells;
}

double pixelsOf(const QString &tag, QLatin1String key, double fallback)
{
    HtmlTokenReader reader(tag);
    HtmlToken token;
    return reader.next(token) ? numberOf(token, key, fallback) : fallback;
}

QString withAttribute(const QString &tag, QLatin1String key, const QString &value)
{
    HtmlTokenReader reader(tag);
    HtmlToken token;
    if (!reader.next(token)) {
        return tag;
    }
    const QString text = key + QLatin1String("=\"") + value.toHtmlEscaped() + QLatin1Char('"');
    const HtmlAttribute *old = attributeOf(token, key);
    if (old != nullptr) {
        return tag.left(old->begin) + text + tag.mid(old->end);
    }
    const int place = token.end - (token.selfClosed ? 2 : 1);
    return tag.left(place) + QLatin1Char(' ') + text + tag.mid(place);
}

} // namespace player
