#pragma once

#include <QString>
#include <QStringView>

#include <array>

namespace lctrlsex {

/** What the declarations of one style attribute mean for the work of laying the text out. */
struct StyleFacts
{
    /** Font size in pixels; 0 when the style names none. */
    double fontSize = 0;
    /** Sum of the left and right margins and paddings, the text indent included, in pixels. */
    double sideways = 0;
    /** Sum of the top and bottom margins and paddings and borders, in pixels. */
    double upright = 0;
    /** Widest border in pixels; a table has it around each cell. */
    double border = 0;
    /** Height of a line in pixels when it is given so, else 0. */
    double lineHeight = 0;
    /** Height of a line as a multiple of the font's. */
    double lineFactor = 1;
    /** Extra advance of each character in pixels. */
    double letterSpacing = 0;
    /** Tells apart fonts: 0 when nothing of the font is named. */
    uint fontKey = 0;
    /** A margin above is given, so that the element's own does not count. */
    bool marginGiven = false;
    /** White space may be kept, so that line feeds may make blocks. */
    bool keepsSpace = false;
    /** The element floats. */
    bool floats = false;
    /** A paragraph of Qt's that holds nothing; Qt passes over its children. */
    bool emptyParagraph = false;
    /** A table that stands for the frame of the whole document. */
    bool rootFrame = false;

    /** Adds what @p other says; the dearer of two sayings holds. */
    void merge(const StyleFacts &other);
};

/** A checked style: whether it may stay, and what it says. */
struct CheckedStyle
{
    /** The style may stay as it is. */
    bool unchanged = true;
    /** The style to write instead when it may not; may be empty. */
    QString text;
    StyleFacts facts;
};

/**
 * Reads declarations as they stand in a style attribute and bounds their numbers.
 *
 * What this reader does not take for certain (escapes, comments, braces, unbalanced quotes) makes
 * the whole style go; a declaration that loads something goes alone.
 */
[[nodiscard]] CheckedStyle checkStyle(const QString &style);

/** Remembers the verdict over the styles seen last: an exported document repeats a few. */
class StyleCache
{
public:
    /** As checkStyle(). The answer is valid until the next call. */
    [[nodiscard]] const CheckedStyle &check(QStringView style);

private:
    struct Entry
    {
        QString style;
        CheckedStyle checked;
    };

    std::array<Entry, 64> m_entries;
};

/** Longest content of a style element that is kept, in characters. */
constexpr int longestStyleSheet = 1024;

/**
 * Checks the content of a style element: plain selectors, few rules, harmless declarations.
 * @returns false when it is to be dropped.
 */
[[nodiscard]] bool styleSheetIsHarmless(QStringView css, StyleFacts *facts);

} // namespace lctrlsex
