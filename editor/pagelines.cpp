#include "pagelines.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>

#include <algorithm>

namespace lctrlsex {

namespace {

/** Lines are laid out in whole pixels; what sticks out by less than half of one is not seen. */
constexpr qreal Tolerance = 0.5;

/** What a page break must not go through. */
struct Unit
{
    qreal top = 0;
    qreal bottom = 0;
    qreal border = 0;    ///< Shown above and below it where a page breaks there.
    QVector<Unit> lines; ///< Of a table row: what it is broken into when no page holds it.
};

using Units = QVector<Unit>;

void appendLines(const QTextBlock &block, Units *units)
{
    const QAbstractTextDocumentLayout *layout = block.document()->documentLayout();
    const QPointF origin = layout->blockBoundingRect(block).topLeft();
    const QTextLayout *text = block.layout();
    for (int i = 0; i < text->lineCount(); ++i) {
        const QTextLine line = text->lineAt(i);
        const qreal top = origin.y() + line.y();
        units->append({top, top + line.height(), 0, {}});
    }
}

/** Sorts by height and joins units that overlap, as the lines of neighbouring cells do. */
Units joined(Units units)
{
    std::sort(units.begin(), units.end(),
              [](const Unit &a, const Unit &b) { return a.top < b.top; });
    Units result;
    for (const Unit &unit : qAsConst(units)) {
        if (!result.isEmpty() && unit.top < result.last().bottom - Tolerance) {
            Unit &last = result.last();
            last.bottom = qMax(last.bottom, unit.bottom);
            last.border = qMax(last.border, unit.border);
            last.lines += unit.lines;
        } else {
            result.append(unit);
        }
    }
    return result;
}

Units frameUnits(const QTextFrame *frame);

Units unitsAt(const QTextFrame::iterator &it)
{
    Units units;
    if (it.currentFrame() != nullptr) {
        units = frameUnits(it.currentFrame());
    } else if (it.currentBlock().isValid()) {
        appendLines(it.currentBlock(), &units);
    }
    return units;
}

/** What follows in a frame or a cell. */
Units unitsFrom(QTextFrame::iterator it)
{
    Units units;
    for (; !it.atEnd(); ++it) {
        units += unitsAt(it);
    }
    return units;
}

Units tableRows(const QTextTable *table)
{
    const QTextTableFormat format = table->format();
    Units rows;
    for (int row = 0; row < table->rows(); ++row) {
        Unit unit;
        for (int column = 0; column < table->columns(); ++column) {
            const QTextTableCell cell = table->cellAt(row, column);
            if (cell.isValid() && cell.row() == row && cell.column() == column) {
                unit.lines += unitsFrom(cell.begin());
            }
        }
        if (unit.lines.isEmpty()) {
            continue; // every cell of the row belongs to a span that starts above
        }
        unit.lines = joined(unit.lines);
        unit.top = unit.lines.first().top - format.cellPadding();
        unit.bottom = unit.lines.last().bottom + format.cellPadding();
        unit.border = format.border() + format.cellSpacing();
        rows.append(unit);
    }
    return rows;
}

Units frameUnits(const QTextFrame *frame)
{
    if (const auto *table = qobject_cast<const QTextTable *>(frame)) {
        return tableRows(table);
    }
    return unitsFrom(frame->begin());
}

/** Whether a block shows nothing: no text, no image, no ground of its own. */
bool isBlank(const QTextBlock &block)
{
    return block.text().trimmed().isEmpty() &&
           block.blockFormat().background().style() == Qt::NoBrush;
}

/** The height below which only empty lines follow. */
qreal inkBottom(const QTextDocument &document)
{
    QTextBlock block = document.lastBlock();
    while (isBlank(block) && block.previous().isValid()) {
        block = block.previous();
    }
    return document.documentLayout()->blockBoundingRect(block).bottom();
}

/** Fills pages from top to bottom, unit by unit. */
class Filler
{
public:
    Filler(qreal height, qreal margin)
        : m_height(height)
        , m_margin(margin)
    {}

    void add(const Unit &unit)
    {
        if (fits(unit)) {
            extend(unit);
            return;
        }
        if (fitsAlone(unit) || unit.lines.isEmpty()) {
            startPage(unit);
            return;
        }
        for (const Unit &line : joined(unit.lines)) {
            add({line.top, line.bottom, 0, {}});
        }
    }

    [[nodiscard]] bool full() const { return m_pages.size() >= MostPages; }

    QVector<PageSlice> take()
    {
        if (m_pages.isEmpty()) {
            m_pages.append({0, m_height, 0, false});
        }
        return std::move(m_pages);
    }

private:
    [[nodiscard]] bool fits(const Unit &unit) const
    {
        const qreal room =
            m_pages.isEmpty() ? m_height : m_pages.last().top + m_height - m_pages.last().drawnAt;
        return unit.bottom + unit.border <= room + Tolerance;
    }

    [[nodiscard]] bool fitsAlone(const Unit &unit) const
    {
        return unit.bottom - unit.top + 2 * unit.border <= m_height + Tolerance;
    }

    void extend(const Unit &unit)
    {
        if (m_pages.isEmpty()) {
            m_pages.append({0, 0, 0, false});
        }
        m_pages.last().bottom = qMax(m_pages.last().bottom, unit.bottom + unit.border);
    }

    void startPage(const Unit &unit)
    {
        const qreal needed = unit.bottom - unit.top + 2 * unit.border;
        if (m_pages.isEmpty()) {
            // The top of a document is drawn as it lies, margin and all.
            m_pages.append({0, m_height, 0, true});
            return;
        }
        PageSlice page;
        page.drawnAt = qBound(0.0, m_height - needed, m_margin);
        page.top = unit.top - unit.border;
        page.cut = needed > m_height + Tolerance;
        page.bottom = page.cut ? page.top + m_height : unit.bottom + unit.border;
        m_pages.append(page);
    }

    qreal m_height;
    qreal m_margin;
    QVector<PageSlice> m_pages;
};

} // namespace

QVector<PageSlice> paginate(const QTextDocument &document, qreal height, qreal until)
{
    Units units;
    auto it = document.rootFrame()->begin();
    for (; !it.atEnd() && (units.isEmpty() || units.last().top <= until + height); ++it) {
        units += unitsAt(it);
    }
    const qreal end = it.atEnd() ? inkBottom(document) : std::numeric_limits<qreal>::infinity();
    Filler filler(height, document.documentMargin());
    for (const Unit &unit : joined(units)) {
        if (unit.top >= end || filler.full()) {
            break;
        }
        filler.add(unit);
    }
    return filler.take();
}

} // namespace lctrlsex
