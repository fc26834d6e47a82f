#include "pagerenderer.h"

#include "contentplacement.h"
#include "pagelines.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>

namespace lctrlsex {

namespace {

/** Text without a colour is black on every desktop, whatever its palette. */
QPalette pagePalette()
{
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

QImage groundFor(const PageStyle &style)
{
    // On an opaque ground both forms hold the same bytes and this one is drawn faster.
    QImage image(style.size,
                 style.isTransparent ? QImage::Format_ARGB32 : QImage::Format_ARGB32_Premultiplied);
    QColor ground = style.isTransparent ? QColor(Qt::transparent) : style.background;
    if (!style.isTransparent) {
        ground.setAlpha(255);
    }
    image.fill(ground);
    return image;
}

void drawContents(QTextDocument *document, QPainter *painter, const QRectF &shown)
{
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = pagePalette();
    context.clip = shown;
    painter->setRenderHint(QPainter::TextAntialiasing, true);
    painter->setClipRect(shown);
    document->documentLayout()->draw(painter, context);
}

} // namespace

bool isPageSize(const QSize &size)
{
    return size.width() > 0 && size.height() > 0 && size.width() <= LongestPageSide &&
           size.height() <= LongestPageSide &&
           qint64(size.width()) * size.height() <= MostPagePixels;
}

QImage drawTop(QTextDocument *document, const PageStyle &style)
{
    PageSlice slice;
    slice.bottom = style.size.height();
    return drawSlice(document, style, slice);
}

QImage drawSlice(QTextDocument *document, const PageStyle &style, const PageSlice &slice)
{
    if (!isPageSize(style.size)) {
        return {};
    }
    QImage image = groundFor(style);
    QPainter painter(&image);
    painter.translate(0, slice.drawnAt - slice.top);
    const qreal height = qMin(slice.bottom - slice.top, style.size.height() - slice.drawnAt);
    drawContents(document, &painter, QRectF(0, slice.top, style.size.width(), height));
    painter.end();
    image.reinterpretAsFormat(QImage::Format_ARGB32);
    return image;
}

QImage finishPage(const QImage &page, const QSize &size, const PageFinish &finish,
                  const PageEffects &effects)
{
    if (page.isNull() || !isPageSize(size)) {
        return page;
    }
    QImage image = page;
    if (finish.isHollow) {
        image = effects.hollow(image);
    }
    if (finish.hasStroke) {
        image = effects.stroke(image, finish.strokeColor);
    }
    return placeContent(image, size, finish.contentAlign, finish.textTransparent);
}

QImage PageRenderer::topPage(const QTextDocument *source, const PageStyle &style)
{
    if (source == nullptr || !isPageSize(style.size)) {
        return {};
    }
    return drawTop(m_top.documentFor(source, style.size), style);
}

} // namespace lctrlsex
