#pragma once

#include "topblocks.h"

#include <QColor>
#include <QImage>
#include <QSize>

class QTextDocument;

namespace lctrlsex {

struct PageSlice;

/** The most pixels of a page image; a larger item has none, as one without a size. */
constexpr qint64 MostPagePixels = 64LL * 1000 * 1000;
/** The longest side of a page image, in pixels. */
constexpr int LongestPageSide = 16384;

/** The ground on which a page is drawn. */
struct PageStyle
{
    QSize size;                    ///< Of the item, in pixels.
    bool isTransparent = false;    ///< The ground is fully transparent.
    QColor background = Qt::black; ///< Else the ground's colour; its alpha is ignored.
};

/** What happens to a page after its text is drawn. */
struct PageFinish
{
    bool isHollow = false;
    bool hasStroke = false;
    QColor strokeColor = Qt::red;
    int contentAlign = Qt::AlignVCenter; ///< 0x40 bottom, 0x20 top, anything else centre.
    bool textTransparent = false;        ///< The screen shows what lies under the item.
};

/** The host's image effects; each gives an image of the size that it gets. Never null. */
struct PageEffects
{
    QImage (*hollow)(const QImage &image);
    QImage (*stroke)(const QImage &image, const QColor &color);
};

/** Whether a page of @p size can be drawn: both sides above 0 and within the limits above. */
[[nodiscard]] bool isPageSize(const QSize &size);

/**
 * Draws the top of @p document, which is laid out at the page's width already, on the ground of
 * @p style. Format_ARGB32_Premultiplied, Format_RGB32 on an opaque ground; null when the size is
 * no page size.
 */
[[nodiscard]] QImage drawTop(QTextDocument *document, const PageStyle &style);

/** The same for one page of a document that was broken into several. */
[[nodiscard]] QImage drawSlice(QTextDocument *document, const PageStyle &style,
                               const PageSlice &slice);

/**
 * The picture that the screen shows, from a page image as drawTop(), drawSlice() or a page file
 * gives it: hollow, then stroke, then placed inside the item by the content alignment. A null
 * @p page or a size that is no page size comes back unchanged.
 */
[[nodiscard]] QImage finishPage(QImage page, const QSize &size, const PageFinish &finish,
                                const PageEffects &effects);

/**
 * Draws the top page of a document that is being edited or shown, at the cost of the page and
 * not of the document. One for each document that is drawn again and again; not thread-safe.
 */
class PageRenderer
{
public:
    /** The top page of @p source before finishPage(); null when the size is not a page size. */
    [[nodiscard]] QImage topPage(const QTextDocument *source, const PageStyle &style);

    /** To be called when images of the document changed. */
    void invalidate() { m_top.invalidate(); }

private:
    TopBlocks m_top;
};

} // namespace lctrlsex
