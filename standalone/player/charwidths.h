#pragma once

#include <QFont>
#include <QString>

#include <array>
#include <memory>
#include <vector>

class QTextLine;

namespace player {

/** How high a line is around its writing, in pixels. */
struct LineExtent
{
    qreal ascent = 0;
    qreal descent = 0;
    qreal leading = 0; ///< Below 0 where a font's lines lie closer.

    [[nodiscard]] static LineExtent of(const QTextLine &line);
    /** Joins what stands on one line, as the text engine does. */
    void unite(const LineExtent &other);
    /** How far below its top the next line begins, in a paragraph with single spacing. */
    [[nodiscard]] qreal height() const;
};

/**
 * How wide and how high text in one font is, character by character: each is laid out once. Good
 * for telling that a text fits into a line, because letters side by side hardly differ in width
 * from letters on their own, and exact in height.
 */
class CharWidths
{
public:
    explicit CharWidths(const QFont &font);

    /**
     * Adds the width of @p text to @p width and its height to @p extent. False when characters
     * are in it whose place depends on others, such as marks and scripts that are joined or run
     * from right to left, or that end a line.
     */
    [[nodiscard]] bool add(const QString &text, qreal *width, LineExtent *extent);

    [[nodiscard]] const QFont &font() const { return m_font; }
    /** Of the font itself, as an empty line has it. */
    [[nodiscard]] const LineExtent &extent() const { return m_extents.front(); }

private:
    struct Character
    {
        float width = -1;   ///< Below 0 while it is not known.
        quint8 extent = 0;  ///< Index among m_extents.
        bool isFree = true; ///< Its place depends on no other.
    };
    using Block = std::array<Character, 256>;

    const Character &character(QChar c);
    void layOut(QChar c, Character *made);

    QFont m_font;
    std::array<std::unique_ptr<Block>, 256> m_blocks;
    std::vector<LineExtent> m_extents; ///< The first is the font's own.
};

} // namespace player
