#include "tableground.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
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

QRectF groundOf(QTextTable *table, const QTextDocument &document)
{
    const QTextTableFormat format = table->format();
    return document.documentLayout()->frameBoundingRect(table).adjusted(
        format.leftMargin(), format.topMargin(), -format.rightMargin(), -format.bottomMargin());
}

} // namespace

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
