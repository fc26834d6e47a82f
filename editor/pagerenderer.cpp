#include "pagerenderer.h"

#include "contentplacement.h"
#include "pagelines.h"
#include "table/tableground.h"

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

/** The format says whether a page is opaque; what is not is drawn and placed without conversion. */
QImage::Format formatFor(const PageStyle &style)
{
    return style.isTransparent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
}

void drawContents(QTextDocument *document, QPainter *painter, const QRectF &shown)
{
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = pagePalette();
    context.clip = shown;
    painter->setRenderHint(QPainter::TextAntialiasing, true);
    painter->setClipRect(shown);
    drawTableGrounds(painter, *document, shown);
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
    QImage image(style.size, formatFor(style));
    if (image.isNull()) {
        return {}; // there is no memory for it
    }
    image.fill(style.isTransparent ? QColor(Qt::transparent) : style.background);
    QPainter painter(&image);
    painter.translate(0, slice.drawnAt - slice.top);
    const qreal height = qMin(slice.bottom - slice.top, style.size.height() - slice.drawnAt);
    drawContents(document, &painter, QRectF(0, slice.top, style.size.width(), height));
    painter.end();
    return image;
}

QImage finishPage(QImage image, const QSize &size, const PageFinish &finish,
                  const PageEffects &effects)
{
    if (image.isNull() || !isPageSize(size)) {
        return image;
    }
    if (finish.isHollow) {
        image = effects.hollow(image);
    }
    if (finish.hasStroke) {
        image = effects.stroke(image, finish.strokeColor);
    }
    return placeContent(std::move(image), size, finish.contentAlign, finish.textTransparent);
}

QImage PageRenderer::topPage(const QTextDocument *source, const PageStyle &style)
{
    if (source == nullptr || !isPageSize(style.size)) {
        return {};
    }
    return drawTop(m_top.documentFor(source, style.size), style);
}

} // namespace lctrlsex
