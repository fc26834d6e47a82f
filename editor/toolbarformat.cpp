#include "toolbarformat.h"

#include <QFont>
#include <QFontInfo>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace lctrlsex {

namespace {

qreal pointSize(const QTextCharFormat &format, const QFont &fallback)
{
    if (format.hasProperty(QTextFormat::FontPointSize)) {
        return format.fontPointSize();
    }
    if (format.hasProperty(QTextFormat::FontPixelSize)) {
        return format.intProperty(QTextFormat::FontPixelSize);
    }
    return fallback.pointSizeF() > 0 ? fallback.pointSizeF() : fallback.pixelSize();
}

Qt::Alignment horizontal(Qt::Alignment align)
{
    if (align & Qt::AlignHCenter) {
        return Qt::AlignHCenter;
    }
    if (align & Qt::AlignRight) {
        return Qt::AlignRight;
    }
    return align & Qt::AlignJustify ? Qt::AlignJustify : Qt::AlignLeft;
}

} // namespace

bool ToolbarFormat::operator==(const ToolbarFormat &other) const
{
    return family == other.family && qFuzzyCompare(pointSize, other.pointSize) &&
           bold == other.bold && italic == other.italic && underline == other.underline &&
           color == other.color && align == other.align && lineSpacing == other.lineSpacing;
}

ToolbarFormat toolbarFormatAt(const QTextCursor &cursor)
{
    ToolbarFormat shown;
    if (cursor.isNull()) {
        return shown;
    }
    const QTextCharFormat text = cursor.charFormat();
    const QTextBlockFormat block = cursor.blockFormat();
    const QFont fallback = cursor.document()->defaultFont();
    // A default font may be an alias; what shows is a family that is installed.
    shown.family = text.hasProperty(QTextFormat::FontFamily) ? text.fontFamily()
                                                             : QFontInfo(fallback).family();
    shown.pointSize = pointSize(text, fallback);
    shown.bold = text.fontWeight() >= QFont::Bold;
    shown.italic = text.fontItalic();
    shown.underline = text.fontUnderline();
    shown.color = text.foreground().color();
    shown.align = horizontal(block.alignment());
    if (block.lineHeightType() == QTextBlockFormat::ProportionalHeight) {
        shown.lineSpacing = qRound(block.lineHeight());
    }
    return shown;
}

bool isInvisible(const QTextCharFormat &format)
{
    return format.foreground().color() == Qt::black && format.background().color() == Qt::black;
}

QColor shownOn(const QColor &ground, const QColor &text)
{
    constexpr int leastDifference = 60; // of 255 steps of lightness
    if (qAbs(qGray(ground.rgb()) - qGray(text.rgb())) >= leastDifference) {
        return text;
    }
    return qGray(ground.rgb()) < 128 ? QColor(Qt::white) : QColor(0x10, 0x10, 0x10);
}

} // namespace lctrlsex
