#include "charformatstyle.h"

#include <QFont>
#include <QStringList>
#include <QTextCharFormat>

namespace lctrlsex {

namespace {

bool isImage(const QTextCharFormat &format)
{
    return format.objectType() == QTextFormat::ImageObject;
}

} // namespace

QString charFormatToStyle(const QTextCharFormat &format)
{
    QStringList style;
    if (format.hasProperty(QTextFormat::ForegroundBrush)) {
        style += QStringLiteral("color:%1;").arg(format.foreground().color().name());
    }
    if (format.hasProperty(QTextFormat::BackgroundBrush)) {
        style += QStringLiteral("background-color:%1;").arg(format.background().color().name());
    }
    // Kept on purpose because the key only compares: other weights leave no trace in it, and the
    // number of points is written with the unit px.
    if (format.hasProperty(QTextFormat::FontWeight) && format.fontWeight() == QFont::Bold) {
        style += QStringLiteral("font-weight:bold;");
    }
    if (format.fontItalic()) {
        style += QStringLiteral("font-style:italic;");
    }
    if (format.fontUnderline()) {
        style += QStringLiteral("text-decoration:underline;");
    }
    const int points = int(format.fontPointSize());
    if (format.hasProperty(QTextFormat::FontPointSize) && points > 0) {
        style += QStringLiteral("font-size:%1px;").arg(points);
    }
    if (!format.fontFamily().isEmpty()) {
        style += QStringLiteral("font-family:%1;").arg(format.fontFamily());
    }
    return style.join(QLatin1Char('|'));
}

bool areFormatsEqual(const QTextCharFormat &left, const QTextCharFormat &right)
{
    if (left.type() != right.type() || isImage(left) || isImage(right) ||
        left.isAnchor() != right.isAnchor() || left.font() != right.font() ||
        charFormatToStyle(left) != charFormatToStyle(right)) {
        return false;
    }
    return !left.isAnchor() || left.anchorHref() == right.anchorHref();
}

} // namespace lctrlsex
