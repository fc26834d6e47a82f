#include "tablepreview.h"

#include "table/richtable.h"
#include "table/tableground.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextCursor>
#include <QTextTable>
#include <QtMath>

using LUM_EditInterface::LTableProperties;

namespace lctrlsex {

/** More lines than a preview can tell apart; the height of the rest is reckoned. */
constexpr int MostLinesShown = 60;

TablePreview::TablePreview(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("tablePreview"));
    m_document.setUndoRedoEnabled(false);
}

void TablePreview::setItemSize(const QSize &size)
{
    m_itemSize = size;
    update();
}

void TablePreview::setRecord(const LTableProperties &record)
{
    m_document.clear();
    m_tableSize = QSize();
    m_hasHeader = record.header;
    LTableProperties shown = record;
    shown.rows = qMin(record.rows, MostLinesShown);
    shown.columns = qMin(record.columns, MostLinesShown);
    QTextCursor cursor(&m_document);
    if (isUsable(record)) {
        if (QTextTable *table = insertTable(cursor, shown, Qt::AlignLeft, QTextCharFormat())) {
            const QRectF frame = m_document.documentLayout()->frameBoundingRect(table);
            const int rowHeight = qRound(frame.height() / shown.rows);
            m_tableSize =
                QSize(qCeil(frame.width()) + (record.columns - shown.columns) * record.width,
                      qCeil(frame.height()) + (record.rows - shown.rows) * rowHeight);
        }
    }
    update();
}

QSize TablePreview::sizeHint() const
{
    return {320, 260};
}

void TablePreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    const QSize page = m_tableSize + QSize(2 * pageMargin(), 2 * pageMargin());
    const QSize whole = m_itemSize.isEmpty() ? page : m_itemSize.expandedTo(page);
    if (whole.isEmpty()) {
        return;
    }
    constexpr int margin = 8;
    const QSizeF room = size() - QSize(2 * margin, 2 * margin);
    const qreal fits = qMin(room.width() / whole.width(), room.height() / whole.height());
    const qreal scale = fits > 1 ? qFloor(fits) : fits; // pixels stay squares
    painter.translate(margin, margin);
    painter.scale(scale, scale);
    if (!m_itemSize.isEmpty()) {
        painter.fillRect(QRect(QPoint(0, 0), m_itemSize), Qt::black);
    }
    drawTableGrounds(&painter, m_document, QRectF(QPointF(0, 0), whole));
    m_document.drawContents(&painter);
}

} // namespace lctrlsex
