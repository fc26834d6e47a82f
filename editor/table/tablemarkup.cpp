#include "tablemarkup.h"

#include "htmltokens.h"
#include "tablewidths.h"

#include <QHash>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <vector>

namespace lctrlsex {

namespace {

/** A stretch of the text and what takes its place; an empty one is a place for more. */
struct Edit
{
    int begin;
    int end;
    QString text;
};

bool isNamed(const HtmlToken &token, QLatin1String name)
{
    return token.name.compare(name, Qt::CaseInsensitive) == 0;
}

HtmlAttribute attributeOf(const HtmlToken &tag, QLatin1String key)
{
    const auto found = std::find_if(tag.attributes.begin(), tag.attributes.end(),
                                    [key](const HtmlAttribute &attribute) {
                                        return attribute.key.compare(key, Qt::CaseInsensitive) == 0;
                                    });
    return found == tag.attributes.end() ? HtmlAttribute() : *found;
}

bool isThere(const HtmlAttribute &attribute)
{
    return attribute.end > attribute.begin;
}

QString valueOf(const HtmlToken &tag, QLatin1String key, const QString &fallback = QString())
{
    const HtmlAttribute attribute = attributeOf(tag, key);
    return isThere(attribute) ? attributeText(attribute) : fallback;
}

/** Where further attributes of a tag go. */
int insertionPlace(const HtmlToken &tag)
{
    return tag.end - (tag.selfClosed ? 2 : 1);
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

int spanOf(const HtmlToken &cell, QLatin1String key)
{
    const HtmlAttribute attribute = attributeOf(cell, key);
    return isThere(attribute) ? attributeText(attribute).toInt() : 1;
}

/** What of a cell's tag matters here. */
struct Cell
{
    HtmlAttribute style;
    HtmlAttribute width;
    int insertAt;
};

/** A table whose end was not read yet. */
class OpenTable
{
public:
    explicit OpenTable(const HtmlToken &tag)
        : m_tag(tag)
        , m_border(tag)
        , m_width(valueOf(tag, QLatin1String("width")).toInt())
    {}

    void addRow()
    {
        m_cells.emplace_back();
        m_extents.append(QVector<CellExtent>());
    }

    void addCell(const HtmlToken &tag)
    {
        if (m_cells.empty()) {
            return;
        }
        const HtmlAttribute width = attributeOf(tag, QLatin1String("width"));
        m_cells.back().push_back(
            {attributeOf(tag, QLatin1String("style")), width, insertionPlace(tag)});
        m_extents.last().append({spanOf(tag, QLatin1String("rowspan")),
                                 spanOf(tag, QLatin1String("colspan")),
                                 isThere(width) ? pixelsOf(attributeText(width), m_width) : -1});
    }

    void finish(const TableMarks &marks, std::vector<Edit> *edits) const
    {
        markTable(marks, edits);
        const QVector<QVector<int>> widths =
            m_width > 0 ? cellWidths(m_extents, m_width, m_border.pixels() + 2 * padding())
                        : QVector<QVector<int>>();
        const QString border = m_border.declaration().toHtmlEscaped();
        const QString bare = assignment(QLatin1String("style"), withDeclaration({}, border));
        QHash<int, QString> numbers; // the same few widths stand in every row
        for (size_t row = 0; row < m_cells.size(); ++row) {
            for (size_t i = 0; i < m_cells[row].size(); ++i) {
                const Cell &cell = m_cells[row][i];
                const QString style = isThere(cell.style)
                                          ? assignment(QLatin1String("style"),
                                                       withDeclaration(escaped(cell.style), border))
                                          : bare;
                set(style, cell.style, cell.insertAt, edits);
                if (widths.isEmpty()) {
                    continue;
                }
                QString &width = numbers[widths[int(row)][int(i)]];
                if (width.isEmpty()) {
                    width = assignment(QLatin1String("width"),
                                       QString::number(widths[int(row)][int(i)]));
                }
                set(width, cell.width, cell.insertAt, edits);
            }
        }
    }

private:
    [[nodiscard]] int padding() const
    {
        return valueOf(m_tag, QLatin1String("cellpadding"), QStringLiteral("1")).toInt();
    }

    /** The value as it may stand between double quotes. */
    static QString escaped(const HtmlAttribute &attribute)
    {
        if (!isThere(attribute)) {
            return QString();
        }
        return attribute.quote == HtmlAttribute::Quote::Double
                   ? attribute.value.toString()
                   : attributeText(attribute).toHtmlEscaped();
    }

    static QString assignment(QLatin1String key, const QString &value)
    {
        return key + QLatin1String("=\"") + value + QLatin1Char('"');
    }

    /** Writes @p text in place of @p old, or at @p insertAt when that is not there. */
    static void set(const QString &text, const HtmlAttribute &old, int insertAt,
                    std::vector<Edit> *edits)
    {
        const bool isReplaced = isThere(old);
        edits->push_back(
            {isReplaced ? old.begin : insertAt, isReplaced ? old.end : insertAt, text});
    }

    void markTable(const TableMarks &marks, std::vector<Edit> *edits) const
    {
        const auto mark = [this, edits](QLatin1String key, const QString &value) {
            set(assignment(key, value), attributeOf(m_tag, key), insertionPlace(m_tag), edits);
        };
        const auto flag = [](bool on) {
            return on ? QStringLiteral("true") : QStringLiteral("false");
        };
        const QString style = escaped(attributeOf(m_tag, QLatin1String("style")));
        if (!style.contains(QLatin1String("border-collapse"))) {
            mark(QLatin1String("style"),
                 withDeclaration(style, QStringLiteral("border-collapse:collapse;")));
        }
        // Kept on purpose because players know them so: both dynamic kinds have the type 1.
        const int type = marks.tableType;
        mark(QLatin1String("type"), QString::number(type == 3 ? 2 : type == 0 ? 0 : 1));
        mark(QLatin1String("orientation"), QString::number(type == 1 || type == 3 ? 1 : 0));
        mark(QLatin1String("dataSourceKey"), marks.dataSourceKey.toHtmlEscaped());
        mark(QLatin1String("thead"), flag(marks.freezesHeader));
        mark(QLatin1String("header"), flag(marks.hasHeader));
        mark(QLatin1String("fillArea"), flag(marks.fillsArea));
    }

    HtmlToken m_tag;
    Border m_border;
    int m_width;
    std::vector<std::vector<Cell>> m_cells; ///< Row by row.
    QVector<QVector<CellExtent>> m_extents;
};

/** The edits of all tables of a text; false when it has no body or a table does not end. */
bool findEdits(const QString &html, const TableMarks &marks, std::vector<Edit> *edits)
{
    bool hasBody = false;
    std::vector<OpenTable> open;
    HtmlTokenReader reader(html);
    HtmlToken token;
    while (reader.next(token)) {
        if (token.kind == HtmlToken::Kind::Open) {
            hasBody = hasBody || isNamed(token, QLatin1String("body"));
            if (isNamed(token, QLatin1String("table"))) {
                open.emplace_back(token);
            } else if (!open.empty() && isNamed(token, QLatin1String("tr"))) {
                open.back().addRow();
            } else if (!open.empty() && isNamed(token, QLatin1String("td"))) {
                open.back().addCell(token);
            }
        } else if (token.kind == HtmlToken::Kind::Close && !open.empty() &&
                   isNamed(token, QLatin1String("table"))) {
            open.back().finish(marks, edits);
            open.pop_back();
        }
    }
    return hasBody && open.empty();
}

} // namespace

QString unifyTableColumnWidths(const QString &html, const TableMarks &marks)
{
    std::vector<Edit> edits;
    if (!findEdits(html, marks, &edits)) {
        return html;
    }
    // Tables inside others end first.
    const auto isBefore = [](const Edit &left, const Edit &right) {
        return left.begin < right.begin;
    };
    if (!std::is_sorted(edits.begin(), edits.end(), isBefore)) {
        std::stable_sort(edits.begin(), edits.end(), isBefore);
    }
    int size = html.size();
    for (const Edit &edit : edits) {
        size += 1 + edit.text.size() - (edit.end - edit.begin);
    }
    QString result;
    result.reserve(size);
    int done = 0;
    for (const Edit &edit : edits) {
        result += html.midRef(done, edit.begin - done);
        if (edit.begin == edit.end) {
            result += QLatin1Char(' ');
        }
        result += edit.text;
        done = edit.end;
    }
    return result + html.midRef(done);
}

} // namespace lctrlsex
