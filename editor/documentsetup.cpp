#include "documentsetup.h"

#include "itemimagehandler.h"

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVector>

namespace lctrlsex {

namespace {

constexpr int LargestWordSpacing = 99;
constexpr int LargestFontSize = 1000;
constexpr int PointsPerInch = 72;

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

void antialias(QFont *font, bool on)
{
    if (isAntialiased(*font) != on) {
        font->setStyleStrategy(on ? QFont::PreferDefault : QFont::NoAntialias);
        // Without soft edges letters stand on whole pixels, and so must the gaps between them.
        font->setHintingPreference(on ? QFont::PreferDefaultHinting : QFont::PreferFullHinting);
    }
}

QFont defaultFont(const QTextDocument &document, const TextSettings &settings)
{
    QFont font = document.defaultFont();
    if (!settings.fontFamily.isEmpty()) {
        font.setFamily(settings.fontFamily);
    }
    antialias(&font, settings.antialias);
    return font;
}

int fontSize(const TextSettings &settings)
{
    return qBound(1, settings.fontSize, LargestFontSize);
}

void prepareBoth(QTextDocument *document)
{
    document->setDefaultStyleSheet(QStringLiteral("a { text-decoration: none; }"));
    QAbstractTextDocumentLayout *layout = document->documentLayout();
    if (layout->findChild<ItemImageHandler *>() == nullptr) {
        layout->registerHandler(QTextFormat::ImageObject, new ItemImageHandler(layout));
    }
    document->markContentsDirty(0, document->characterCount());
}

/** A stretch of text and the format that it is to get. */
struct Change
{
    int position;
    int length;
    QTextCharFormat format;
};

bool inPoints(QTextCharFormat *format)
{
    if (!format->hasProperty(QTextFormat::FontPixelSize)) {
        return false;
    }
    format->setFontPointSize(qMax(1, format->intProperty(QTextFormat::FontPixelSize)));
    format->clearProperty(QTextFormat::FontPixelSize);
    return true;
}

/** Lets @p change work on every format; it tells whether it changed one. */
void changeFormats(QTextDocument *document, bool (*change)(QTextCharFormat *))
{
    QVector<Change> changes;
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        QTextCharFormat empty = block.charFormat();
        if (change(&empty)) {
            cursor.setPosition(block.position());
            cursor.setBlockCharFormat(empty); // the height of an empty line
        }
        changes.clear();
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            QTextCharFormat format = it.fragment().charFormat();
            if (change(&format)) {
                changes.append({it.fragment().position(), it.fragment().length(), format});
            }
        }
        for (const Change &found : qAsConst(changes)) {
            cursor.setPosition(found.position);
            cursor.setPosition(found.position + found.length, QTextCursor::KeepAnchor);
            cursor.setCharFormat(found.format);
        }
    }
    cursor.endEditBlock();
}

} // namespace

bool TextSettings::operator==(const TextSettings &other) const
{
    return fontFamily == other.fontFamily && fontSize == other.fontSize &&
           fontSpace == other.fontSpace && singleLine == other.singleLine &&
           antialias == other.antialias;
}

qreal letterSpacing(int value)
{
    if (value < 0) {
        // Kept on purpose because stored items rely on it: negative numbers count an eighth.
        return value * 0.125;
    }
    return value > LargestWordSpacing ? 0 : value;
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

bool isAntialiased(const QFont &font)
{
    return (font.styleStrategy() & QFont::NoAntialias) == 0;
}

void setAntialiasing(QTextDocument *document, bool on)
{
    QFont font = document->defaultFont();
    antialias(&font, on);
    document->setDefaultFont(font);
}

void prepareView(QTextDocument *document, const TextSettings &settings)
{
    QFont font = defaultFont(*document, settings);
    font.setPointSize(fontSize(settings));
    document->setDefaultFont(font);
    document->documentLayout()->setPaintDevice(pointDevice());
    prepareBoth(document);
}

void preparePage(QTextDocument *document, const TextSettings &settings)
{
    QFont font = defaultFont(*document, settings);
    font.setPixelSize(fontSize(settings));
    document->setDefaultFont(font);
    document->documentLayout()->setPaintDevice(nullptr);
    prepareBoth(document);
}

bool pointsToPixels(QTextCharFormat *format)
{
    if (!format->hasProperty(QTextFormat::FontPointSize)) {
        return false;
    }
    const int pixels = qMax(1, qRound(format->fontPointSize()));
    format->clearProperty(QTextFormat::FontPointSize);
    if (!format->hasProperty(QTextFormat::FontPixelSize)) { // a size inside of another
        format->setProperty(QTextFormat::FontPixelSize, pixels);
    }
    return true;
}

void pointsToPixels(QTextDocument *document)
{
    changeFormats(document, pointsToPixels);
}

void pixelsToPoints(QTextDocument *document)
{
    changeFormats(document, inPoints);
}

} // namespace lctrlsex
