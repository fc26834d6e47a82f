#include "itemdocument.h"

#include "itemimagehandler.h"
#include "rasterimage.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QTextCursor>
#include <QUrl>

namespace lctrlsex {

namespace {

constexpr int LargestWordSpacing = 99;
constexpr int PointsPerInch = 72;
constexpr int LargestFontSize = 1000;
constexpr int NameShown = 60;

/** A device on which a point is a pixel. Shared: it is only ever asked for its metrics. */
QImage *pointDevice()
{
    static QImage device = [] {
        QImage image(1, 1, QImage::Format_ARGB32);
        const int dotsPerMeter = qRound(PointsPerInch / 0.0254);
        image.setDotsPerMeterX(dotsPerMeter);
        image.setDotsPerMeterY(dotsPerMeter);
        return image;
    }();
    return &device;
}

QImage transparentPixel()
{
    QImage pixel(1, 1, QImage::Format_ARGB32);
    pixel.fill(Qt::transparent);
    return pixel;
}

QString shortened(const QString &name)
{
    return name.size() <= NameShown ? name : name.left(NameShown) + QChar(0x2026);
}

} // namespace

bool TextSettings::operator==(const TextSettings &other) const
{
    return fontFamily == other.fontFamily && fontSize == other.fontSize
        && fontSpace == other.fontSpace && singleLine == other.singleLine;
}

qreal letterSpacing(int value)
{
    if (value < 0) {
        // Kept on purpose because stored items rely on it: negative numbers count an eighth.
        return value * 0.125;
    }
    return value > LargestWordSpacing ? 0 : value;
}

void prepareLayout(QTextDocument *document)
{
    QAbstractTextDocumentLayout *layout = document->documentLayout();
    layout->setPaintDevice(pointDevice());
    if (layout->findChild<ItemImageHandler *>() == nullptr) {
        layout->registerHandler(QTextFormat::ImageObject, new ItemImageHandler(layout));
    }
    document->markContentsDirty(0, document->characterCount());
}

void prepareItemDocument(QTextDocument *document, const TextSettings &settings)
{
    document->setDefaultStyleSheet(QStringLiteral("a { text-decoration: none; }"));
    QFont font = document->defaultFont();
    if (!settings.fontFamily.isEmpty()) {
        font.setFamily(settings.fontFamily);
    }
    font.setPointSize(qBound(1, settings.fontSize, LargestFontSize));
    document->setDefaultFont(font);
    prepareLayout(document);
}

void applyLetterSpacing(QTextDocument *document, const TextSettings &settings)
{
    if (settings.singleLine || settings.fontSpace == 0 || document->isEmpty()) {
        return;
    }
    QTextCharFormat format;
    format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
    format.setFontLetterSpacing(letterSpacing(settings.fontSpace));
    QTextCursor cursor(document);
    cursor.select(QTextCursor::Document);
    cursor.mergeCharFormat(format);
}

ItemDocument::ItemDocument(QObject *parent) : QTextDocument(parent)
{
    setUndoRedoEnabled(false);
}

void ItemDocument::loadItem(const QString &html, const TextSettings &settings)
{
    clear();
    m_denied.clear();
    m_images.clear();
    prepareItemDocument(this, settings);
    setHtml(html);
    applyLetterSpacing(this, settings);
}

QVariant ItemDocument::loadResource(int type, const QUrl &name)
{
    if (type != QTextDocument::ImageResource) {
        return QByteArray();
    }
    // An invalid value would make Qt open the path itself, so there is always an image.
    const QString text = name.toString();
    const auto known = m_images.constFind(text);
    if (known != m_images.constEnd()) {
        return *known;
    }
    const QImage image = resourceImage(text);
    m_images.insert(text, image);
    return image;
}

QImage ItemDocument::resourceImage(const QString &name)
{
    if (name.startsWith(QLatin1String("data://bindkey/"), Qt::CaseInsensitive)) { // as a host name
        return transparentPixel(); // of a field whose value is not there yet
    }
    if (name.startsWith(QLatin1String("data:"))) {
        const int comma = name.indexOf(QLatin1Char(','));
        const bool isBase64 = name.leftRef(comma).endsWith(QLatin1String(";base64"));
        if (comma < 0 || !isBase64) {
            return deny(name, tr("the image data is not Base64; insert the image again"));
        }
        const QByteArray coded = name.midRef(comma + 1).toLatin1();
        const RasterImage raster = decodeRaster(QByteArray::fromBase64(coded));
        return raster.image.isNull() ? deny(name, raster.error) : raster.image;
    }
    if (name.startsWith(QLatin1String(":/")) || name.startsWith(QLatin1String("qrc:/"))) {
        const QString path = name.startsWith(QLatin1Char('q')) ? name.mid(3) : name;
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            return deny(name, tr("there is no such built-in image; insert the image again"));
        }
        const RasterImage raster = decodeRaster(file.readAll());
        return raster.image.isNull() ? deny(name, raster.error) : raster.image;
    }
    return deny(name, tr("files and addresses are not loaded; insert the image into the programme"));
}

QImage ItemDocument::deny(const QString &name, const QString &reason)
{
    m_denied.append({shortened(name), reason});
    return transparentPixel();
}

} // namespace lctrlsex
