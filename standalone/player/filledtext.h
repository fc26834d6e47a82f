#pragma once

#include "itemvalues.h"
#include "linestyles.h"
#include "templatetext.h"

namespace player {

class ValueImages;

/** What all templates of an item are filled from. */
struct FillSources
{
    ItemValues *values;
    LineStyles *styles;
    ValueImages *images;
};

/** Which placeholders of a template stand for something. */
enum class Placeholders {
    OfLines,   ///< Fields, positions and calculations.
    InOrder,   ///< The same, and each "${i}" the next value of the line.
    OfItem,    ///< Calculations only, because there is no line.
    AllVisible ///< None: they stay as typed.
};

/** A template whose names have been looked up: what a row or the text around a table shows. */
class FilledText
{
public:
    FilledText() = default;
    FilledText(TemplateText text, Placeholders placeholders, const FillSources &sources);

    [[nodiscard]] const TemplateText &text() const { return m_text; }
    /** Whether it is the same whatever the line. */
    [[nodiscard]] bool isConstant() const { return m_isConstant; }
    /** Widths in pixels for the cells of a template that has places for them. */
    void setCellWidths(const QVector<int> &widths) { m_widths = widths; }

    /** Appends the text for @p line, -1 for none, to @p html. */
    void append(QString *html, int line, const FillSources &sources) const;
    /** Stand in marked(): a slot, by its index, and the beginning, by its index, and end of a
     * style. */
    enum Marker : ushort {
        SlotMarker = 0xe000,
        StyleMarker = 0xf000,
        StyleEndMarker = 0xf8ff,
        MostMarkers = 0x800 ///< Of each kind.
    };
    /**
     * The text with a single character for each slot that is filled and around each run under a
     * style, by which they are found again in a document; null when there is no way to mark them.
     */
    [[nodiscard]] QString marked() const;
    /** The value of a slot; null when it is missing. */
    [[nodiscard]] QString value(int slot, int line, const FillSources &sources) const;
    /** Whether something stands for the slot. */
    [[nodiscard]] bool isFilled(int slot) const { return bool(m_slots.at(slot)); }
    /** The condition that a run under a style meets on @p line, LineStyles::None for none. */
    [[nodiscard]] int condition(int style, int line, const FillSources &sources) const;
    /** The rule of a run under a style. */
    [[nodiscard]] int rule(int style) const { return m_styles.at(style); }

private:
    struct Image
    {
        ValueRef value;
        int rule = LineStyles::Unknown;
    };
    class Filler;
    class MarkFiller;

    TemplateText m_text;
    QVector<ValueRef> m_slots;
    QVector<Image> m_images;
    QVector<int> m_styles; ///< Their rules.
    QVector<int> m_widths;
    bool m_isConstant = true;
};

} // namespace player
