#include "typingstyle.h"

#include <QBrush>
#include <QFont>
#include <QTextCharFormat>

namespace lctrlsex {

namespace {

constexpr int SizeWithoutANumber = 16;

} // namespace

int TypingStyle::effectiveSize() const
{
    return pointSize > 0 ? pointSize : SizeWithoutANumber;
}

QTextCharFormat TypingStyle::toFormat() const
{
    QTextCharFormat format;
    if (!family.isEmpty()) {
        format.setFontFamily(family);
    }
    format.setFontPointSize(effectiveSize());
    format.setFontItalic(italic);
    format.setFontUnderline(underline);
    format.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    if (color.isValid()) {
        format.setForeground(QBrush(color));
    }
    return format;
}

bool TypingStyle::operator==(const TypingStyle &other) const
{
    return family == other.family && pointSize == other.pointSize && italic == other.italic &&
           underline == other.underline && bold == other.bold && color == other.color;
}

} // namespace lctrlsex
