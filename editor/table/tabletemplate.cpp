#include "tabletemplate.h"

#include <QUuid>

#include <algorithm>
#include <iterator>

namespace lctrlsex {

namespace {

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/** Whether @p length digits stand behind each other somewhere; looks at few of the characters. */
bool hasNumber(QStringView text, qsizetype length)
{
    for (qsizetype at = length - 1; at < text.size(); at += length) {
        if (isDigit(text[at])) {
            const auto end = std::find_if_not(text.begin() + at, text.end(), isDigit);
            const auto rest = std::find_if_not(std::make_reverse_iterator(text.begin() + at),
                                               text.rend(), isDigit);
            if (end - rest.base() >= length) {
                return true;
            }
        }
    }
    return false;
}

/** Digits that @p html does not hold. */
QString newDigits(const QString &html)
{
    QString digits;
    do {
        digits = QString::number(qHash(QUuid::createUuid().toString(), 0));
    } while (hasNumber(html, digits.size()) && html.contains(digits));
    return digits;
}

class Cutter
{
public:
    Cutter(const QString &html, const TableOutline &table, bool hasHeader)
        : m_html(html)
        , m_table(table)
        , m_index(hasHeader ? 1 : 0)
    {
        m_result.outcome = TableTemplate::Whole;
        m_result.token = QStringLiteral("table:") + newDigits(html);
    }

    TableTemplate fixedForm()
    {
        if (hasTemplateRow()) {
            m_result.part = text(templateRow().span);
            m_result.fixedRows = int(m_table.rows.size() - m_index);
            setContent(headOfFixedForm(), m_table.inside.end);
        }
        return m_result;
    }

    TableTemplate dynamicRows()
    {
        if (hasTemplateRow()) {
            const MarkupSpan row = templateRow().span;
            m_result.part = text(row);
            setContent(m_html.left(row.begin), row.end);
        }
        return m_result;
    }

    /** Dynamic columns, and tables that grow both ways. */
    TableTemplate cells(bool isAdaptive)
    {
        const bool hasPart =
            std::any_of(m_table.rows.begin(), m_table.rows.end(), [this](const OutlinedRow &row) {
                return templateCell(row) != row.cells.end();
            });
        if (!hasPart) {
            return m_result;
        }
        do {
            m_result.separator = newDigits(m_html);
        } while (m_result.token.contains(m_result.separator));
        const bool keepsRest = isAdaptive || m_index == 0;
        m_result.suffix.reserve(keepsRest ? m_table.inside.end - m_table.inside.begin : 0);
        for (const OutlinedRow &row : m_table.rows) {
            if (!row.cells.empty()) {
                addRow(row, keepsRest, isAdaptive && &row == &m_table.rows.front());
            }
        }
        m_result.suffix.squeeze();
        setContent(m_html.left(m_table.inside.begin), m_table.inside.end);
        return m_result;
    }

private:
    using CellPlace = std::vector<OutlinedCell>::const_iterator;

    [[nodiscard]] bool hasTemplateRow() const { return m_table.rows.size() > m_index; }
    [[nodiscard]] const OutlinedRow &templateRow() const { return m_table.rows[m_index]; }

    [[nodiscard]] QString text(MarkupSpan span) const { return span.in(m_html).toString(); }

    [[nodiscard]] CellPlace templateCell(const OutlinedRow &row) const
    {
        return std::find_if(row.cells.begin(), row.cells.end(), [this](const OutlinedCell &cell) {
            return cell.column == int(m_index);
        });
    }

    /** Everything before the template row, with no section of the table left open. */
    [[nodiscard]] QString headOfFixedForm() const
    {
        if (templateRow().section.isEmpty()) {
            return m_html.left(templateRow().span.begin);
        }
        if (m_index == 0) {
            return m_html.left(m_table.inside.begin);
        }
        const OutlinedRow &header = m_table.rows.front();
        const QString head = m_html.left(header.span.end);
        return header.section.isEmpty()
                   ? head
                   : head + QLatin1String("</") + header.section + QLatin1Char('>');
    }

    /** @p holdsRepetitions: cells of the author that the first row's template stands for. */
    void addRow(const OutlinedRow &row, bool keepsRest, bool holdsRepetitions)
    {
        const CellPlace found = templateCell(row);
        // Where there is none, its place is behind the cells of the columns before.
        const CellPlace place =
            std::find_if(row.cells.begin(), row.cells.end(),
                         [this](const OutlinedCell &cell) { return cell.column >= int(m_index); });
        if (!m_result.prefix.isEmpty()) {
            m_result.prefix += m_result.separator;
            m_result.part += m_result.separator;
            m_result.suffix += m_result.separator;
        }
        m_result.prefix += QLatin1String("<tr>");
        for (auto cell = row.cells.begin(); cell != place; ++cell) {
            m_result.prefix += cell->span.in(m_html);
        }
        if (found != row.cells.end()) {
            m_result.part += found->span.in(m_html);
        }
        const CellPlace rest = found == row.cells.end() ? place : found + 1;
        for (auto cell = rest; keepsRest && cell != row.cells.end(); ++cell) {
            const QStringView markup = cell->span.in(m_html);
            if (!holdsRepetitions || !markup.contains(QLatin1String("${i}"))) {
                m_result.suffix += markup;
            }
        }
        m_result.suffix += QLatin1String("</tr>");
    }

    void setContent(const QString &head, int tail)
    {
        m_result.outcome = TableTemplate::Cut;
        m_result.content =
            head + QLatin1String("${") + m_result.token + QLatin1Char('}') + m_html.midRef(tail);
    }

    const QString &m_html;
    const TableOutline &m_table;
    size_t m_index; ///< Of the template's row or column.
    TableTemplate m_result;
};

} // namespace

TableTemplate cutTemplate(const QString &html, int tableType, bool hasHeader)
{
    return cutTemplate(html, findTable(html), tableType, hasHeader);
}

TableTemplate cutTemplate(const QString &html, const FoundTable &found, int tableType,
                          bool hasHeader)
{
    TableTemplate none;
    if (!found.isWellFormed || !found.hasTable) {
        none.outcome = found.isWellFormed ? TableTemplate::NoTable : TableTemplate::NotRead;
        return none;
    }
    Cutter cutter(html, found.table, hasHeader);
    switch (tableType) {
    case 1:
        return cutter.dynamicRows();
    case 2:
    case 3:
        return cutter.cells(tableType == 3);
    default:
        return cutter.fixedForm();
    }
}

} // namespace lctrlsex
