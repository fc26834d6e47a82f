#pragma once

#include <QString>

namespace lctrlsex {

/** The numbers of a property lie between these; relative ones are counted in fonts. */
struct CssRange
{
    double least;
    double most;
};

/** One number of a declaration. */
struct CssNumber
{
    /** There is a number; it may be infinite or none when it was written so. */
    bool valid = false;
    double value = 0;
    /** px, pt, em, ex, %, or empty. */
    QString unit;

    /** Its length at 96 dots per inch; @p em is the height of the font. */
    [[nodiscard]] double pixels(double em) const;
    /** It is a multiple of the font's height. */
    [[nodiscard]] bool isRelative() const;
};

/** The range that the numbers of a property are held to. */
[[nodiscard]] CssRange cssRangeOf(const QString &property);

/** Reads a number as Qt's own conversions do, so that "1e30px" and "nan" are numbers here too. */
[[nodiscard]] CssNumber readCssNumber(const QString &component);

/**
 * Whether Qt reads the component as one word, colour or function. "a+9px" would be two values,
 * and a quoted number would count as a number.
 */
[[nodiscard]] bool isPlainCssComponent(const QString &component);

} // namespace lctrlsex
