#pragma once

#include <QImage>
#include <QObject>
#include <QTextFormat>
#include <QTextObjectInterface>

class QTextDocument;

namespace lctrlsex {

/**
 * Lays out and draws the images of a document, one image pixel to one page pixel.
 *
 * Qt's own handler scales images by the resolution of the document's paint device, which is 72 dots
 * per inch here, and opens files that the document names when it gets no image. This one asks the
 * document and nobody else. A width or height in the document wins; one alone keeps the ratio; no
 * side is longer than 16384 pixels.
 */
class ItemImageHandler : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)
public:
    explicit ItemImageHandler(QObject *parent)
        : QObject(parent)
    {}

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                    const QTextFormat &format) override;

private:
    static QSizeF wantedSize(const QTextDocument *document, const QTextImageFormat &image);
    static QImage imageOf(const QTextDocument *document, const QTextImageFormat &format);
};

} // namespace lctrlsex
