#include "charwidths.h"

#include <QTextLayout>

#include <cmath>
#include <limits>

namespace player {

namespace {

/** Whether a character stands in its place whatever is beside it, apart from kerning. */
bool standsFree(QChar c)
{
    switch (c.category()) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        break;
    }
    switch (c.script()) {
    case QChar::Script_Common:
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Bopomofo:
        return c.direction() != QChar::DirR && c.direction() != QChar::DirAL;
    default:
        return c.unicode() >= 0xac00 && c.unicode() <= 0xd7a3; // whole syllables
    }
}

} // namespace

LineExtent LineExtent::of(const QTextLine &line)
{
    return {line.ascent(), line.descent(), line.leading()};
}

void LineExtent::unite(const LineExtent &other)
{
    const qreal above = qMax(leading + ascent, other.leading + other.ascent);
    ascent = qMax(ascent, other.ascent);
    descent = qMax(descent, other.descent);
    leading = above - ascent;
}

qreal LineExtent::height() const
{
    return std::ceil(ascent + descent + leading);
}

CharWidths::CharWidths(const QFont &font)
    : m_font(font)
{
    m_font.setKerning(font.kerning());
    m_extents.emplace_back();
    Character empty;
    layOut(QChar(), &empty);
    m_extents.front() = m_extents.back();
    m_extents.resize(1);
}

void CharWidths::layOut(QChar c, Character *made)
{
    QTextLayout layout(c.isNull() ? QString() : QString(c), m_font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLeadingIncluded(true);
    line.setLineWidth(1e6);
    layout.endLayout();
    made->width = float(line.horizontalAdvance());
    made->isFree = standsFree(c);
    const LineExtent extent = LineExtent::of(line);
    for (size_t i = 0; i < m_extents.size(); ++i) {
        const LineExtent &known = m_extents[i];
        if (known.ascent == extent.ascent && known.descent == extent.descent &&
            known.leading == extent.leading) {
            made->extent = quint8(i);
            return;
        }
    }
    if (m_extents.size() > std::numeric_limits<quint8>::max()) {
        made->isFree = false; // so many fonts are left to the text engine
        return;
    }
    made->extent = quint8(m_extents.size());
    m_extents.push_back(extent);
}

const CharWidths::Character &CharWidths::character(QChar c)
{
    std::unique_ptr<Block> &block = m_blocks[c.row()];
    if (!block) {
        block = std::make_unique<Block>();
    }
    Character &known = (*block)[c.cell()];
    if (known.width < 0) {
        layOut(c, &known);
    }
    return known;
}

bool CharWidths::add(const QString &text, qreal *width, LineExtent *extent)
{
    int last = -1;
    for (const QChar c : text) {
        const Character &known = character(c);
        if (!known.isFree) {
            return false;
        }
        *width += qreal(known.width);
        if (known.extent != last) {
            last = known.extent;
            extent->unite(m_extents[known.extent]);
        }
    }
    return true;
}

} // namespace player
