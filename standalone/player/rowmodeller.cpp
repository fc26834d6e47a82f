#include "rowmodeller.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>

namespace player {

using namespace lctrlsex;

namespace {

constexpr int MostCells = 2000;
constexpr int MostLooks = 16;

QString lookOf(const QTextTableCell &cell)
{
    const QTextTableCellFormat format = cell.format().toTableCellFormat();
    return QStringLiteral("%1;%2;%3;%4")
        .arg(format.topPadding())
        .arg(format.bottomPadding())
        .arg(format.topBorder())
        .arg(format.bottomBorder());
}

qreal linesHeight(const QTextBlock &block)
{
    qreal height = 0;
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
        height +=
            block.blockFormat().lineHeight(LineExtent::of(block.layout()->lineAt(i)).height(), 1);
    }
    return height;
}

} // namespace

void RowHeights::Modeller::run(Model *model)
{
    m_marked = m_heights.m_rows.filled(m_heights.m_rows.templateOf(m_row)).marked();
    const QVector<CellMarkup> cells = cellsOf(m_marked);
    const bool keepsBlanks = m_heights.m_rows.head().contains(QLatin1String("pre-wrap"));
    const bool isTooOdd = std::any_of(cells.begin(), cells.end(),
                                      [](const CellMarkup &cell) { return cell.rows > 1; });
    if (cells.isEmpty() || cells.size() > MostCells || !keepsBlanks || isTooOdd) {
        return;
    }
    Q_UNUSED(m_heights.tableHeight(m_marked, m_row))
    const auto frames = m_heights.m_document.rootFrame()->childFrames();
    const auto *table = frames.isEmpty() ? nullptr : qobject_cast<QTextTable *>(frames.first());
    if (table == nullptr) {
        return;
    }
    int index = 0;
    for (int column = 0; column < table->columns(); ++column) {
        const QTextTableCell cell = table->cellAt(0, column);
        if (cell.column() == column && index < cells.size() && !readCell(cell, index++)) {
            return;
        }
    }
    model->option = m_heights.m_document.defaultTextOption();
    model->least = m_heights.tableHeight(emptiedBut(m_constant), m_row) - m_heights.frameHeight();
    QHash<QString, qreal> around;
    for (Found &found : m_found) {
        if (!around.contains(found.look)) {
            const qreal height = m_heights.tableHeight(emptiedBut({found.index}), m_row);
            around.insert(found.look, height - m_heights.frameHeight() - found.text);
        }
        found.cell.around = around.value(found.look);
        model->cells.append(found.cell);
    }
    model->isUsable = around.size() <= MostLooks;
}

bool RowHeights::Modeller::readCell(const QTextTableCell &cell, int index)
{
    Found found;
    found.index = index;
    found.look = lookOf(cell);
    m_isChanging = false;
    bool isReadable = true;
    for (auto it = cell.begin(); !it.atEnd(); ++it) {
        isReadable =
            isReadable && it.currentFrame() == nullptr && readParagraph(it.currentBlock(), &found);
        found.text += it.currentFrame() == nullptr ? linesHeight(it.currentBlock()) : 0;
        found.look += QStringLiteral(";%1;%2")
                          .arg(it.currentBlock().blockFormat().topMargin())
                          .arg(it.currentBlock().blockFormat().bottomMargin());
    }
    if (!m_isChanging && isReadable) {
        m_constant.append(index);
    } else {
        m_found.append(found);
    }
    return isReadable;
}

/** False for what is more than lines of text. */
bool RowHeights::Modeller::readParagraph(const QTextBlock &block, Found *found)
{
    if (block.textList() != nullptr || block.blockFormat().textIndent() != 0 ||
        block.layout()->lineCount() == 0) {
        return false;
    }
    Paragraph paragraph;
    paragraph.format = block.blockFormat();
    paragraph.width = block.layout()->lineAt(0).width();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (it.fragment().charFormat().isImageFormat() ||
            !readRun(it.fragment().text(), it.fragment().charFormat().font(), &paragraph)) {
            return false;
        }
    }
    if (paragraph.runs.isEmpty()) {
        paragraph.runs.append({QString(), -1, -1, m_heights.fontFor(block.charFormat().font())});
    }
    found->cell.paragraphs.append(paragraph);
    return true;
}

bool RowHeights::Modeller::readRun(const QString &text, const QFont &font, Paragraph *paragraph)
{
    CharWidths *const widths = m_heights.fontFor(font);
    QString literal;
    const auto endLiteral = [&] {
        if (!literal.isEmpty()) {
            paragraph->runs.append({literal, -1, m_style, widths});
        }
        literal.clear();
    };
    for (const QChar c : text) {
        const ushort code = c.unicode();
        if (code < FilledText::SlotMarker || code > FilledText::StyleEndMarker) {
            literal += c;
            continue;
        }
        endLiteral();
        m_isChanging = true;
        if (code < FilledText::StyleMarker) {
            paragraph->runs.append({QString(), code - FilledText::SlotMarker, m_style, widths});
        } else {
            m_style = code == FilledText::StyleEndMarker ? -1 : code - FilledText::StyleMarker;
        }
    }
    endLiteral();
    return true;
}

QString RowHeights::Modeller::emptiedBut(const QVector<int> &kept) const
{
    const QVector<CellMarkup> cells = cellsOf(m_marked);
    QString row = QStringLiteral("<tr>");
    for (int i = 0; i < cells.size(); ++i) {
        const CellMarkup &cell = cells.at(i);
        if (kept.contains(i)) {
            row += m_marked.midRef(cell.begin, cell.end - cell.begin);
        } else {
            row += m_marked.midRef(cell.begin, cell.tagEnd - cell.begin) +
                   QLatin1String("<p style=\"margin:0px; font-size:1px;\">.</p></td>");
        }
    }
    return row + QLatin1String("</tr>");
}

} // namespace player
