#include "tablemarkup.h"

#include "markupedits.h"
#include "strictmarkup.h"
#include "tableborder.h"
#include "tablewidths.h"

#include <QHash>
#include <QVector>

#include <algorithm>
#include <utility>
#include <vector>

namespace lctrlsex {

namespace {

int spanOf(const HtmlToken &cell, QLatin1String key)
{
    const HtmlAttribute attribute = attributeOf(cell, key);
    return isThere(attribute) ? attributeText(attribute).toInt() : 1;
}

/** A table whose end was not read yet. Its edits are made in order, those of widths without text.
 */
class OpenTable
{
public:
    OpenTable(const HtmlToken &tag, const TableMarks &marks, std::vector<MarkupEdit> *edits)
        : m_border(TableBorder(tag))
        , m_width(valueOf(tag, QLatin1String("width")).toInt())
        , m_perJoint(TableBorder(tag).pixels() +
                     2 * valueOf(tag, QLatin1String("cellpadding"), QStringLiteral("1")).toInt())
        , m_edits(edits)
    {
        mark(tag, marks);
    }

    void addRow()
    {
        const int expected = m_rows.isEmpty() ? 0 : m_rows.last().size();
        m_rows.append(QVector<CellExtent>());
        m_rows.last().reserve(expected);
    }

    void addCell(const HtmlToken &tag)
    {
        if (m_rows.isEmpty()) {
            return;
        }
        const HtmlAttribute width = attributeOf(tag, QLatin1String("width"));
        m_rows.last().append({spanOf(tag, QLatin1String("rowspan")),
                              spanOf(tag, QLatin1String("colspan")),
                              isThere(width) ? pixelsOfWidth(attributeText(width), m_width) : -1});
        const int place = insertionPlace(tag);
        m_edits->push_back(m_border.editOf(attributeOf(tag, QLatin1String("style")), place));
        if (m_width > 0) {
            m_edits->push_back(editOf(QString(), width, place));
            const auto last = m_edits->end() - 1;
            const bool isFirst = last->begin < last[-1].begin;
            if (isFirst) {
                std::swap(*last, last[-1]);
            }
            m_widthEdits.push_back(m_edits->size() - (isFirst ? 2 : 1));
        }
    }

    /** Writes the widths, which only all cells together decide. */
    void finish() const
    {
        if (m_width <= 0) {
            return;
        }
        QHash<int, QString> numbers; // the same few widths stand in every row
        auto place = m_widthEdits.begin();
        for (const QVector<int> &row : cellWidths(m_rows, m_width, m_perJoint)) {
            for (const int pixels : row) {
                MarkupEdit &edit = (*m_edits)[*place++];
                const bool isReplaced = edit.end > edit.begin;
                QString &number = numbers[isReplaced ? pixels : -1 - pixels];
                if (number.isEmpty()) {
                    number = editText(QLatin1String("width"), QString::number(pixels), isReplaced);
                }
                edit.text = number;
            }
        }
    }

private:
    void mark(const HtmlToken &tag, const TableMarks &marks)
    {
        const auto first = std::ptrdiff_t(m_edits->size());
        const auto add = [this, &tag](QLatin1String key, const QString &value) {
            const HtmlAttribute old = attributeOf(tag, key);
            m_edits->push_back(
                editOf(editText(key, value, isThere(old)), old, insertionPlace(tag)));
        };
        const auto flag = [](bool on) {
            return on ? QStringLiteral("true") : QStringLiteral("false");
        };
        const QString style = escapedValue(attributeOf(tag, QLatin1String("style")));
        if (!style.contains(QLatin1String("border-collapse"))) {
            add(QLatin1String("style"),
                withDeclaration(style, QStringLiteral("border-collapse:collapse;")));
        }
        // Kept on purpose because players know them so: both dynamic kinds have the type 1.
        const int type = marks.tableType;
        add(QLatin1String("type"), QString::number(type == 3 ? 2 : type == 0 ? 0 : 1));
        add(QLatin1String("orientation"), QString::number(type == 1 || type == 3 ? 1 : 0));
        add(QLatin1String("dataSourceKey"), marks.dataSourceKey.toHtmlEscaped());
        add(QLatin1String("thead"), flag(marks.freezesHeader));
        add(QLatin1String("header"), flag(marks.hasHeader));
        add(QLatin1String("fillArea"), flag(marks.fillsArea));
        // Old attributes may stand in any order.
        std::stable_sort(m_edits->begin() + first, m_edits->end(),
                         [](const MarkupEdit &left, const MarkupEdit &right) {
                             return left.begin < right.begin;
                         });
    }

    BorderTexts m_border;
    int m_width;
    int m_perJoint;
    std::vector<MarkupEdit> *m_edits;
    std::vector<size_t> m_widthEdits; ///< Cell by cell, where there is a width to divide.
    QVector<QVector<CellExtent>> m_rows;
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
    [[nodiscard]] FoundTable &found() { return m_found; }

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
                m_open.emplace_back(m_token, m_marks, m_edits);
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
            m_open.back().finish();
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
    OutlinedHtml result{edited(html, edits), std::move(finder.found())};
    moveTable(&result.found.table, edits);
    return result;
}

QString unifyTableColumnWidths(const QString &html, const TableMarks &marks)
{
    return unifyAndOutline(html, marks).html;
}

} // namespace lctrlsex
