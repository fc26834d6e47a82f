#include "itemdocument.h"

#include "behindtable.h"
#include "rasterimage.h"
#include "table/fieldformat.h"

#include <QFile>
#include <QFont>
#include <QUrl>

namespace lctrlsex {

namespace {

constexpr int NameShown = 60;

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

ItemDocument::ItemDocument(QObject *parent)
    : QTextDocument(parent)
{
    setUndoRedoEnabled(false);
}

void ItemDocument::loadItem(const QString &html, const TextSettings &settings)
{
    clear();
    m_denied.clear();
    m_images.clear();
    preparePage(this, settings);
    setHtml(html);
    removeUnwrittenBlank(this, html);
    if (html.contains(QLatin1String("data://bindKey/"))) {
        alignFields(this);
    }
    pointsToPixels(this);
    applyLetterSpacing(this, settings);
}

void ItemDocument::clearForView(const TextSettings &settings)
{
    clear();
    m_denied.clear();
    m_images.clear();
    setDefaultFont(QFont()); // not that of the item before
    prepareView(this, settings);
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
    return deny(name,
                tr("files and addresses are not loaded; insert the image into the programme"));
}

QImage ItemDocument::deny(const QString &name, const QString &reason)
{
    m_denied.append({shortened(name), reason});
    return transparentPixel();
}

} // namespace lctrlsex
