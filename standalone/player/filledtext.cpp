#include "filledtext.h"

#include "valueimages.h"

#include <algorithm>
#include <utility>

namespace player {

using namespace lctrlsex;

namespace {

/** Keeps the height of a line of text that has no other character. */
constexpr ushort Nothing = 0x200b;

ValueRef resolved(const TemplateSlot &slot, Placeholders placeholders, ItemValues *values)
{
    if (placeholders == Placeholders::AllVisible) {
        return {};
    }
    if (placeholders == Placeholders::InOrder && slot.number >= 0) {
        return values->position(slot.number);
    }
    const ValueRef found = values->placeholder(slot.name);
    const bool needsLine = found.kind == ValueRef::Position || found.kind == ValueRef::Field;
    return placeholders == Placeholders::OfItem && needsLine ? ValueRef() : found;
}

} // namespace

FilledText::FilledText(TemplateText text, Placeholders placeholders, const FillSources &sources)
    : m_text(std::move(text))
{
    for (const TemplateSlot &slot : m_text.slotList()) {
        m_slots.append(resolved(slot, placeholders, sources.values));
        m_isConstant = m_isConstant && !m_slots.constLast();
    }
    for (const TemplateImage &image : m_text.images()) {
        const QString id = FieldStyle::fromString(image.style).conditionId;
        m_images.append({sources.values->field(image.key),
                         id.isEmpty() ? LineStyles::Unknown : sources.styles->ruleOf(id)});
    }
    for (const TemplateStyle &style : m_text.styles()) {
        m_styles.append(sources.styles->ruleOf(style.id));
    }
    m_isConstant = m_isConstant && m_images.isEmpty() && m_styles.isEmpty();
}

/** Fills the template for one line. */
class FilledText::Filler
{
public:
    Filler(const FilledText *text, int line, const FillSources &sources)
        : m_filled(*text)
        , m_line(line)
        , m_sources(sources)
    {}

    bool slot(QString *html, int index)
    {
        if (!m_filled.isFilled(index)) {
            return false;
        }
        const TemplateSlot &slot = m_filled.m_text.slotList().at(index);
        const int before = html->size();
        m_sources.values->append(html, m_filled.m_slots.at(index), lineOf(slot.line));
        if (slot.isAlone && html->size() == before) {
            *html += QChar(Nothing);
        }
        return true;
    }

    void image(QString *html, int index)
    {
        const TemplateImage &image = m_filled.m_text.images().at(index);
        const Image &shown = m_filled.m_images.at(index);
        const int line = lineOf(image.line);
        const QString text = m_sources.values->value(shown.value, line);
        QString style = image.style;
        const int condition = m_sources.styles->holding(shown.rule, line, text);
        if (condition != LineStyles::None) {
            style = m_sources.styles
                        ->applied(shown.rule, condition, FieldStyle::fromString(image.style))
                        .toString();
        }
        *html += image.before;
        *html += QLatin1String("src=\"") + m_sources.images->nameOf(text, style) + QLatin1Char('"');
        *html += image.after;
    }

    void beginStyle(QString *html, int index)
    {
        const int condition = m_filled.condition(index, m_line, m_sources);
        m_isOpen = condition != LineStyles::None;
        if (m_isOpen) {
            *html += QLatin1String("<span style=\"") +
                     m_sources.styles->declarations(m_filled.rule(index), condition) +
                     QLatin1String("\">");
        }
    }

    void endStyle(QString *html, int /*index*/)
    {
        *html += QLatin1String(m_isOpen ? "</span>" : "");
    }

    void cellWidth(QString *html, int index)
    {
        if (index < m_filled.m_widths.size()) {
            *html += QStringLiteral(" width=\"%1\"").arg(m_filled.m_widths.at(index));
        }
    }

private:
    [[nodiscard]] int lineOf(int offset) const { return m_line < 0 ? m_line : m_line + offset; }

    const FilledText &m_filled;
    const int m_line;
    const FillSources &m_sources;
    bool m_isOpen = false;
};

void FilledText::append(QString *html, int line, const FillSources &sources) const
{
    Filler filler(this, line, sources);
    m_text.expand(html, filler);
}

/** Marks what a line would fill. */
class FilledText::MarkFiller
{
public:
    explicit MarkFiller(const FilledText *text)
        : m_filled(*text)
    {}

    bool slot(QString *html, int index) const
    {
        if (m_filled.isFilled(index)) {
            *html += QChar(SlotMarker + index);
        }
        return m_filled.isFilled(index);
    }
    static void image(QString *html, int /*index*/) { *html += QLatin1String("<img src=\"\"/>"); }
    static void beginStyle(QString *html, int index) { *html += QChar(StyleMarker + index); }
    static void endStyle(QString *html, int /*index*/) { *html += QChar(StyleEndMarker); }
    void cellWidth(QString *html, int index) const
    {
        Filler(&m_filled, 0, {nullptr, nullptr, nullptr}).cellWidth(html, index);
    }

private:
    const FilledText &m_filled;
};

QString FilledText::marked() const
{
    QString html;
    const auto isMarker = [](QChar c) {
        return c.unicode() >= SlotMarker && c.unicode() <= StyleEndMarker;
    };
    if (m_slots.size() > MostMarkers || m_styles.size() > MostMarkers) {
        return html;
    }
    MarkFiller filler(this);
    for (const TemplateText::Piece &piece : m_text.pieces()) {
        const QStringView typed = m_text.typed(piece);
        if (piece.kind == TemplateText::Piece::Literal &&
            std::any_of(typed.begin(), typed.end(), isMarker)) {
            return html;
        }
    }
    m_text.expand(&html, filler);
    return html;
}

QString FilledText::value(int slot, int line, const FillSources &sources) const
{
    const int offset = m_text.slotList().at(slot).line;
    return sources.values->value(m_slots.at(slot), line < 0 ? line : line + offset);
}

int FilledText::condition(int style, int line, const FillSources &sources) const
{
    const TemplateStyle &tested = m_text.styles().at(style);
    const QString own =
        tested.slot >= 0 && m_slots.at(tested.slot) ? value(tested.slot, line, sources) : QString();
    return sources.styles->holding(m_styles.at(style), line < 0 ? line : line + tested.line, own);
}

} // namespace player
