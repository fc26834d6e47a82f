#include "tablemarkup.h"

#include "htmltokens.h"
#include "tablewidths.h"

#include <QPair>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <vector>

namespace lctrlsex {

namespace {

using NewAttributes = QVector<QPair<QString, QString>>;

/** A tag and what it is to become. */
struct Rewrite
{
    HtmlToken tag;
    NewAttributes attributes;
};

/** A table on the way through the text; cells are indices of rewrites. */
struct OpenTable
{
    size_t tag;
    std::vector<std::vector<size_t>> rows;
};

bool isNamed(const HtmlToken &token, QLatin1String name)
{
    return token.name.compare(name, Qt::CaseInsensitive) == 0;
}

QString valueOf(const HtmlToken &tag, QLatin1String key, const QString &fallback = QString())
{
    for (const HtmlAttribute &attribute : tag.attributes) {
        if (attribute.key.compare(key, Qt::CaseInsensitive) == 0) {
            return attributeText(attribute);
        }
    }
    return fallback;
}

/** @p style with another declaration behind what it says. */
QString withDeclaration(const QString &style, const QString &declaration)
{
    QString result = style.trimmed();
    if (!result.isEmpty() && !result.endsWith(QLatin1Char(';'))) {
        result += QLatin1Char(';');
    }
    return result + QLatin1Char(' ') + declaration;
}

/** The border of a table: what of it is repeated on each cell. */
struct Border
{
    explicit Border(const HtmlToken &table)
        : width(valueOf(table, QLatin1String("border"), QStringLiteral("1")) + QLatin1String("px"))
    {
        const auto declarations =
            valueOf(table, QLatin1String("style")).split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (const QString &declaration : declarations) {
            constexpr int nameLength = 13; // of each of the three
            const QString text = declaration.trimmed();
            const QString value = text.mid(nameLength).trimmed();
            if (text.startsWith(QLatin1String("border-style:"))) {
                style = value;
            } else if (text.startsWith(QLatin1String("border-color:"))) {
                color = value;
            } else if (text.startsWith(QLatin1String("border-width:"))) {
                width = value;
            }
        }
    }

    [[nodiscard]] QString declaration() const
    {
        return QStringLiteral("border:%1 %2 %3;").arg(width, style, color);
    }
    [[nodiscard]] int pixels() const
    {
        bool isNumber = false;
        const int number = int(width.leftRef(width.size() - 2).toDouble(&isNumber));
        return isNumber && width.endsWith(QLatin1String("px")) ? number : 1;
    }

    QString style = QStringLiteral("solid");
    QString color = QStringLiteral("#ff0000");
    QString width;
};

double pixelsOf(const QString &width, int tableWidth)
{
    bool isNumber = false;
    if (width.endsWith(QLatin1Char('%'))) {
        const double share = width.chopped(1).toDouble(&isNumber);
        return isNumber && share >= 0 ? share * tableWidth / 100 : -1;
    }
    const double pixels = width.toDouble(&isNumber);
    return isNumber && pixels >= 0 && pixels < 1e6 ? pixels : -1;
}

CellExtent extentOf(const HtmlToken &cell, int tableWidth)
{
    const QString one = QStringLiteral("1");
    return {valueOf(cell, QLatin1String("rowspan"), one).toInt(),
            valueOf(cell, QLatin1String("colspan"), one).toInt(),
            pixelsOf(valueOf(cell, QLatin1String("width")), tableWidth)};
}

/** Finds the tables of a text and says what becomes of their tags. */
class TablePass
{
public:
    TablePass(const QString &html, const TableMarks &marks)
        : m_html(html)
        , m_marks(marks)
    {}

    QString run()
    {
        HtmlTokenReader reader(m_html);
        HtmlToken token;
        while (reader.next(token)) {
            if (token.kind == HtmlToken::Kind::Open) {
                open(token);
            } else if (token.kind == HtmlToken::Kind::Close && !m_open.empty() &&
                       isNamed(token, QLatin1String("table"))) {
                finish(m_open.back());
                m_open.pop_back();
            }
        }
        return m_open.empty() && m_hasBody ? rewritten() : m_html;
    }

private:
    void open(const HtmlToken &token)
    {
        if (isNamed(token, QLatin1String("body"))) {
            m_hasBody = true;
        } else if (isNamed(token, QLatin1String("table"))) {
            m_open.push_back({m_rewrites.size(), {}});
            m_rewrites.push_back({token, {}});
        } else if (m_open.empty()) {
            return;
        } else if (isNamed(token, QLatin1String("tr"))) {
            m_open.back().rows.emplace_back();
        } else if (isNamed(token, QLatin1String("td")) && !m_open.back().rows.empty()) {
            m_open.back().rows.back().push_back(m_rewrites.size());
            m_rewrites.push_back({token, {}});
        }
    }

    void finish(const OpenTable &table)
    {
        Rewrite &rewrite = m_rewrites[table.tag];
        const Border border(rewrite.tag);
        for (const std::vector<size_t> &row : table.rows) {
            for (const size_t cell : row) {
                const QString style = valueOf(m_rewrites[cell].tag, QLatin1String("style"));
                m_rewrites[cell].attributes.append(
                    {QStringLiteral("style"), withDeclaration(style, border.declaration())});
            }
        }
        setWidths(table, border);
        const QString style = valueOf(rewrite.tag, QLatin1String("style"));
        if (!style.contains(QLatin1String("border-collapse"))) {
            rewrite.attributes.append(
                {QStringLiteral("style"),
                 withDeclaration(style, QStringLiteral("border-collapse:collapse;"))});
        }
        appendMarks(&rewrite.attributes);
    }

    void setWidths(const OpenTable &table, const Border &border)
    {
        const HtmlToken &tag = m_rewrites[table.tag].tag;
        const int width = valueOf(tag, QLatin1String("width")).toInt();
        if (width <= 0) {
            return;
        }
        QVector<QVector<CellExtent>> rows;
        for (const std::vector<size_t> &row : table.rows) {
            QVector<CellExtent> cells;
            for (const size_t cell : row) {
                cells.append(extentOf(m_rewrites[cell].tag, width));
            }
            rows.append(cells);
        }
        const int padding = valueOf(tag, QLatin1String("cellpadding"), QStringLiteral("1")).toInt();
        const auto widths = cellWidths(rows, width, border.pixels() + 2 * padding);
        for (int row = 0; row < widths.size(); ++row) {
            for (int i = 0; i < widths.at(row).size(); ++i) {
                m_rewrites[table.rows[size_t(row)][size_t(i)]].attributes.append(
                    {QStringLiteral("width"), QString::number(widths.at(row).at(i))});
            }
        }
    }

    void appendMarks(NewAttributes *attributes) const
    {
        // Kept on purpose because players know them so: both dynamic kinds have the type 1.
        const int type = m_marks.tableType;
        const auto flag = [](bool on) {
            return on ? QStringLiteral("true") : QStringLiteral("false");
        };
        *attributes += NewAttributes{
            {QStringLiteral("type"), QString::number(type == 3   ? 2
                                                     : type == 0 ? 0
                                                                 : 1)},
            {QStringLiteral("orientation"), QString::number(type == 1 || type == 3 ? 1 : 0)},
            {QStringLiteral("dataSourceKey"), m_marks.dataSourceKey},
            {QStringLiteral("thead"), flag(m_marks.freezesHeader)},
            {QStringLiteral("header"), flag(m_marks.hasHeader)},
            {QStringLiteral("fillArea"), flag(m_marks.fillsArea)}};
    }

    [[nodiscard]] QString rewritten() const
    {
        QString result;
        result.reserve(m_html.size() + 64 * int(m_rewrites.size()));
        int done = 0;
        for (const Rewrite &rewrite : m_rewrites) {
            result += m_html.midRef(done, rewrite.tag.begin - done);
            appendTag(&result, rewrite);
            done = rewrite.tag.end;
        }
        return result + m_html.midRef(done);
    }

    /** The tag with the new attributes in the places of the old ones, further ones at its end. */
    static void appendTag(QString *html, const Rewrite &rewrite)
    {
        *html += QLatin1Char('<') + rewrite.tag.name.toString();
        NewAttributes further = rewrite.attributes;
        for (const HtmlAttribute &attribute : rewrite.tag.attributes) {
            const auto isSame = [&attribute](const QPair<QString, QString> &other) {
                return attribute.key.compare(other.first, Qt::CaseInsensitive) == 0;
            };
            const auto replaced = std::find_if(further.begin(), further.end(), isSame);
            if (replaced == further.end()) {
                appendAttribute(html, attribute.key.toString(), attributeText(attribute));
            } else {
                appendAttribute(html, replaced->first, replaced->second);
                further.erase(replaced);
            }
        }
        for (const auto &attribute : qAsConst(further)) {
            appendAttribute(html, attribute.first, attribute.second);
        }
        *html += QLatin1Char('>');
    }

    static void appendAttribute(QString *html, const QString &key, const QString &value)
    {
        *html += QLatin1Char(' ') + key + QLatin1String("=\"") + value.toHtmlEscaped() +
                 QLatin1Char('"');
    }

    const QString &m_html;
    const TableMarks &m_marks;
    std::vector<Rewrite> m_rewrites;
    std::vector<OpenTable> m_open;
    bool m_hasBody = false;
};

} // namespace

QString unifyTableColumnWidths(const QString &html, const TableMarks &marks)
{
    return TablePass(html, marks).run();
}

} // namespace lctrlsex
