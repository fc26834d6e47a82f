#include "tableground.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

namespace lctrlsex {

namespace {

bool isForgotten(const QTextTable *table)
{
    return table != nullptr && table->format().borderCollapse() &&
           table->format().background().style() != Qt::NoBrush;
}

/** Whether @p table begins above the end of @p shown; lays out no more than that. */
bool isReached(const QTextTable &table, const QTextDocument &document, const QRectF &shown)
{
    const int last = document.documentLayout()->hitTest(shown.bottomRight(), Qt::FuzzyHit);
    return last >= table.firstPosition();
}

/** Where the contents of the first row begin; a cell that is aligned otherwise begins lower. */
qreal firstLine(const QTextTable &table, const QAbstractTextDocumentLayout &layout)
{
    qreal top = layout.frameBoundingRect(table.document()->rootFrame()).bottom();
    for (int column = 0; column < table.columns(); ++column) {
        const QTextBlock block = table.cellAt(0, column).firstCursorPosition().block();
        top = qMin(top, layout.blockBoundingRect(block).top());
    }
    return top;
}

/**
 * From the middle of the outer border to the middle of the one opposite. The rectangle of a table
 * that the layout tells has the right size, but starts where the text of the first cell does.
 */
QRectF groundOf(QTextTable *table, const QTextDocument &document)
{
    const QAbstractTextDocumentLayout &layout = *document.documentLayout();
    const qreal scale = lengthScale(document);
    const qreal border = table->format().border() * scale;
    const qreal padding = table->format().cellPadding() * scale;
    const qreal outside = border + (border > 0 ? qMax(1.0, border / 2) : 0);
    const QRectF frame = layout.frameBoundingRect(table);
    const qreal inwards = padding + border / 2;
    return {frame.left() - inwards, firstLine(*table, layout) - inwards,
            frame.width() - 2 * outside, frame.height() - 2 * border - outside};
}

} // namespace

double lengthScale(const QTextDocument &document)
{
    const QPaintDevice *device = document.documentLayout()->paintDevice();
    const QImage usual(1, 1, QImage::Format_RGB32);
    return device == nullptr ? 1 : qreal(device->logicalDpiY()) / usual.logicalDpiY();
}

void drawTableGrounds(QPainter *painter, const QTextDocument &document, const QRectF &shown)
{
    const QList<QTextFrame *> frames = document.rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        auto *table = qobject_cast<QTextTable *>(frame);
        if (isForgotten(table) && isReached(*table, document, shown)) {
            const QRectF ground = groundOf(table, document) & shown;
            painter->fillRect(ground, table->format().background());
        }
    }
}

} // namespace lctrlsex
