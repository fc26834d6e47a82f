#include "tablemarkup.h"

#include "markupedits.h"
#include "strictmarkup.h"
#include "tableborder.h"
#include "tablewidths.h"

#include <QHash>
#include <QVector>

#include <algorithm>
#include <vector>

namespace lctrlsex {

namespace {

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
        const size_t expected = m_cells.empty() ? 0 : m_cells.back().size();
        m_cells.emplace_back();
        m_cells.back().reserve(expected);
        m_extents.append(QVector<CellExtent>());
        m_extents.last().reserve(int(expected));
    }

    void addCell(const HtmlToken &tag)
    {
        if (m_cells.empty()) {
            return;
        }
        ++m_cellCount;
        const HtmlAttribute width = attributeOf(tag, QLatin1String("width"));
        m_cells.back().push_back(
            {attributeOf(tag, QLatin1String("style")), width, insertionPlace(tag)});
        m_extents.last().append(
            {spanOf(tag, QLatin1String("rowspan")), spanOf(tag, QLatin1String("colspan")),
             isThere(width) ? pixelsOfWidth(attributeText(width), m_width) : -1});
    }

    void finish(const TableMarks &marks, std::vector<MarkupEdit> *edits) const
    {
        edits->reserve(edits->size() + 2 * m_cellCount + 8);
        markTable(marks, edits);
        const QVector<QVector<int>> widths =
            m_width > 0 ? cellWidths(m_extents, m_width, m_border.pixels() + 2 * padding())
                        : QVector<QVector<int>>();
        const BorderTexts border(m_border);
        QHash<int, QString> numbers; // the same few widths stand in every row
        for (size_t row = 0; row < m_cells.size(); ++row) {
            for (size_t i = 0; i < m_cells[row].size(); ++i) {
                const Cell &cell = m_cells[row][i];
                edits->push_back(border.editOf(cell.style, cell.insertAt));
                if (widths.isEmpty()) {
                    continue;
                }
                const int pixels = widths[int(row)][int(i)];
                QString &number = numbers[isThere(cell.width) ? pixels : -1 - pixels];
                if (number.isEmpty()) {
                    number = editText(QLatin1String("width"), QString::number(pixels), cell.width);
                }
                edits->push_back(editOf(number, cell.width, cell.insertAt));
                if (edits->back().begin < edits->end()[-2].begin) {
                    std::swap(edits->back(), edits->end()[-2]); // in order, nothing is to be sorted
                }
            }
        }
    }

private:
    [[nodiscard]] int padding() const
    {
        return valueOf(m_tag, QLatin1String("cellpadding"), QStringLiteral("1")).toInt();
    }

    void markTable(const TableMarks &marks, std::vector<MarkupEdit> *edits) const
    {
        const auto mark = [this, edits](QLatin1String key, const QString &value) {
            const HtmlAttribute old = attributeOf(m_tag, key);
            edits->push_back(editOf(editText(key, value, old), old, insertionPlace(m_tag)));
        };
        const auto flag = [](bool on) {
            return on ? QStringLiteral("true") : QStringLiteral("false");
        };
        const QString style = escapedValue(attributeOf(m_tag, QLatin1String("style")));
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
    TableBorder m_border;
    int m_width;
    std::vector<std::vector<Cell>> m_cells; ///< Row by row.
    size_t m_cellCount = 0;
    QVector<QVector<CellExtent>> m_extents;
};

/** Collects the edits of all tables of a text. */
class EditFinder
{
public:
    EditFinder(const QString &html, const TableMarks &marks, std::vector<MarkupEdit> *edits)
        : m_html(html)
        , m_attributes(html)
        , m_outliner(html)
        , m_marks(marks)
        , m_edits(edits)
    {}

    /** False when the text is not well-formed or has no body. */
    bool find()
    {
        StrictMarkupReader reader(m_html);
        MarkupTag tag;
        while (reader.next(tag)) {
            m_outliner.read(tag);
            if (tag.kind == MarkupTag::Kind::Close) {
                close(tag);
            } else if (!open(tag)) {
                return false;
            }
        }
        m_found = m_outliner.take(reader.isComplete());
        return m_found.hasBody && m_found.isWellFormed;
    }
    [[nodiscard]] const FoundTable &found() const { return m_found; }

private:
    /** False when the attributes are quoted in a way that Qt reads differently. */
    bool open(const MarkupTag &tag)
    {
        const bool isTable = tag.name == QStringView(u"table");
        if (isTable || (!m_open.empty() && tag.name == QStringView(u"td"))) {
            m_attributes.seek(tag.begin);
            if (!m_attributes.next(m_token) || m_token.end != tag.end) {
                return false;
            }
            if (isTable) {
                m_open.emplace_back(m_token);
            } else {
                m_open.back().addCell(m_token);
            }
        } else if (!m_open.empty() && tag.name == QStringView(u"tr")) {
            m_open.back().addRow();
        }
        if (isTable && tag.kind == MarkupTag::Kind::Empty) {
            close(tag);
        }
        return true;
    }

    void close(const MarkupTag &tag)
    {
        if (tag.name == QStringView(u"table")) {
            m_open.back().finish(m_marks, m_edits);
            m_open.pop_back();
        }
    }

    QStringView m_html;
    HtmlTokenReader m_attributes;
    HtmlToken m_token;
    TableOutliner m_outliner;
    FoundTable m_found;
    const TableMarks &m_marks;
    std::vector<MarkupEdit> *m_edits;
    std::vector<OpenTable> m_open;
};

} // namespace

OutlinedHtml unifyAndOutline(const QString &html, const TableMarks &marks)
{
    std::vector<MarkupEdit> edits;
    EditFinder finder(html, marks, &edits);
    if (!finder.find()) {
        return {html, findTable(html)};
    }
    OutlinedHtml result{QString(), finder.found()};
    // Tables inside others end first.
    const auto isBefore = [](const MarkupEdit &left, const MarkupEdit &right) {
        return left.begin < right.begin;
    };
    if (!std::is_sorted(edits.begin(), edits.end(), isBefore)) {
        std::stable_sort(edits.begin(), edits.end(), isBefore);
    }
    result.html = edited(html, edits);
    moveTable(&result.found.table, edits);
    return result;
}

QString unifyTableColumnWidths(const QString &html, const TableMarks &marks)
{
    return unifyAndOutline(html, marks).html;
}

} // namespace lctrlsex
