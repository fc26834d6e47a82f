#include "tablecells.h"

#include "table/richtable.h"
#include "table/tableoperations.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>

namespace lctrlsex {

namespace {

/** Reads one cell after another; a quote counts at the start of a cell only. */
class CellReader
{
public:
    explicit CellReader(const QString &text)
        : m_text(text)
    {}

    QVector<QStringList> rows()
    {
        QVector<QStringList> rows{QStringList()};
        while (m_at <= m_text.size()) {
            rows.last().append(cell());
            if (m_at >= m_text.size()) {
                break;
            }
            const bool endsRow = m_text.at(m_at) == QLatin1Char('\n');
            ++m_at;
            if (endsRow && m_at == m_text.size()) {
                break; // the last row has a line end, too
            }
            if (endsRow) {
                rows.append(QStringList());
            }
        }
        return rows;
    }

private:
    QString cell()
    {
        const int start = m_at;
        if (m_at < m_text.size() && m_text.at(m_at) == QLatin1Char('"')) {
            QString quoted;
            if (readQuoted(&quoted) && isAtEnd()) {
                return quoted;
            }
            m_at = start; // a quote that is none: the cell is as it is written
        }
        while (!isAtEnd()) {
            ++m_at;
        }
        return m_text.mid(start, m_at - start);
    }

    /** False when the quote never ends. */
    bool readQuoted(QString *cell)
    {
        for (++m_at; m_at < m_text.size(); ++m_at) {
            if (m_text.at(m_at) != QLatin1Char('"')) {
                *cell += m_text.at(m_at);
            } else if (m_at + 1 < m_text.size() && m_text.at(m_at + 1) == QLatin1Char('"')) {
                *cell += m_text.at(m_at++);
            } else {
                ++m_at;
                return true;
            }
        }
        return false;
    }

    [[nodiscard]] bool isAtEnd() const
    {
        return m_at >= m_text.size() || m_text.at(m_at) == QLatin1Char('\t') ||
               m_text.at(m_at) == QLatin1Char('\n');
    }

    const QString &m_text;
    int m_at = 0;
};

int widest(const QVector<QStringList> &cells)
{
    int columns = 0;
    for (const QStringList &row : cells) {
        columns = std::max(columns, row.size());
    }
    return columns;
}

void grow(QTextTable *table, int rows, int columns, TableGrowth growth)
{
    if (growth.columns && columns > table->columns()) {
        const int most = std::max(table->columns(), MostTableCells / table->rows());
        insertLines(table, Axis::Columns, table->columns(),
                    std::min(columns, most) - table->columns());
    }
    if (growth.rows && rows > table->rows()) {
        const int most = std::max(table->rows(), MostTableCells / table->columns());
        insertLines(table, Axis::Rows, table->rows(), std::min(rows, most) - table->rows());
    }
}

bool isFirstSlot(const QTextTableCell &cell, int row, int column)
{
    return cell.isValid() && cell.row() == row && cell.column() == column;
}

void setText(const QTextTableCell &cell, const QString &text, const QTextCharFormat &format)
{
    QTextCursor cursor = cell.firstCursorPosition();
    cursor.setPosition(cell.lastPosition(), QTextCursor::KeepAnchor);
    cursor.insertText(text, format);
}

/** Whether letters look alike in both; what a format leaves open is @p fallback's. */
bool looksLike(const QTextCharFormat &format, const QTextCharFormat &other, const QFont &fallback)
{
    const QFont font = format.font().resolve(fallback);
    const QFont wanted = other.font().resolve(fallback);
    return font.family() == wanted.family() &&
           qFuzzyCompare(font.pointSizeF(), wanted.pointSizeF()) &&
           font.weight() == wanted.weight() && font.italic() == wanted.italic() &&
           font.underline() == wanted.underline() && format.foreground() == other.foreground();
}

bool reads(const QTextTableCell &cell, const QString &text, const QTextCharFormat &format)
{
    const QTextBlock block = cell.firstCursorPosition().block();
    if (block != cell.lastCursorPosition().block() || block.text() != text) {
        return false;
    }
    const QFont fallback = block.document()->defaultFont();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (!looksLike(it.fragment().charFormat(), format, fallback)) {
            return false;
        }
    }
    return true;
}

} // namespace

QVector<QStringList> cellsOf(const QString &text)
{
    if (!text.contains(QLatin1Char('\t'))) {
        return {};
    }
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return CellReader(lines).rows();
}

int fillCells(QTextTable *table, int row, int column, const QVector<QStringList> &cells,
              TableGrowth growth, const QTextCharFormat &format)
{
    if (table == nullptr || row < 0 || column < 0) {
        return 0;
    }
    QTextCursor block = table->firstCursorPosition();
    block.beginEditBlock();
    grow(table, row + cells.size(), column + widest(cells), growth);
    int left = 0;
    for (int i = 0; i < cells.size(); ++i) {
        for (int k = 0; k < cells.at(i).size(); ++k) {
            const bool isInside = row + i < table->rows() && column + k < table->columns();
            const QTextTableCell cell =
                isInside ? table->cellAt(row + i, column + k) : QTextTableCell();
            if (isFirstSlot(cell, row + i, column + k)) {
                setText(cell, cells.at(i).at(k), format);
            } else if (!cells.at(i).at(k).isEmpty()) {
                ++left;
            }
        }
    }
    block.endEditBlock();
    return left;
}

void writeCells(QTextTable *table, const QVector<CellText> &texts, const QTextCharFormat &format)
{
    QTextCursor step;
    for (const CellText &text : texts) {
        const QTextTableCell cell =
            table != nullptr ? table->cellAt(text.row, text.column) : QTextTableCell();
        if (!isFirstSlot(cell, text.row, text.column) || reads(cell, text.text, format)) {
            continue;
        }
        if (step.isNull()) { // an empty step would be announced as a change
            step = table->firstCursorPosition();
            step.beginEditBlock();
        }
        setText(cell, text.text, format);
    }
    if (!step.isNull()) {
        step.endEditBlock();
    }
}

QPair<int, int> neighbourCell(const QTextTable &table, int row, int column, bool forward)
{
    const int step = forward ? 1 : -1;
    const int count = table.rows() * table.columns();
    for (int slot = row * table.columns() + column + step; slot >= 0 && slot < count;
         slot += step) {
        const int atRow = slot / table.columns();
        const int atColumn = slot % table.columns();
        if (isFirstSlot(table.cellAt(atRow, atColumn), atRow, atColumn)) {
            return {atRow, atColumn};
        }
    }
    return {-1, -1};
}

} // namespace lctrlsex
