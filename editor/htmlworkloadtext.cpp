#include "htmlworkload.h"

#include "htmlcosts.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace lctrlsex {

using namespace cost;

namespace {

bool mayBreakAround(uint code)
{
    const bool ideograph = (code >= 0x3400 && code <= 0x4dbf) || (code >= 0x4e00 && code <= 0x9fff);
    return ideograph || (code >= 0xac00 && code <= 0xd7a3);
}

/** Characters of one class are laid out in one go. */
uint scriptClass(uint code)
{
    if (code < 0x250 || (code >= 0x2010 && code < 0x2028) || (code >= 0xd800 && code <= 0xdfff)) {
        return 0;
    }
    return code >= 0x2e80 && code < 0xd800 ? 1 : code >> 8;
}

bool isLayoutSpace(QChar c)
{
    return c == QLatin1Char(' ') || (c >= QLatin1Char('\t') && c <= QLatin1Char('\r'));
}

} // namespace

void HtmlWorkload::startBlock(bool repeated)
{
    endBlock();
    m_blockClosed = false;
    m_block.fontSize = top().fontSize;
    m_heights.back() += repeated ? 0 : top().upright;
    m_work += blockTime;
    m_memory += blockMemory;
    if (!m_listItems.empty()) {
        m_listItems.back() += 1;
        m_work += m_listItems.back() * listItemTime;
    }
}

double HtmlWorkload::passes() const
{
    // Each table around a text lays it out once more or twice, to find its widths.
    static constexpr double factors[] = {1, 2, 5, 9, 16};
    return factors[std::min(m_tables.size(), std::size(factors) - 1)];
}

double HtmlWorkload::ordinaryPasses() const
{
    return m_tables.empty() ? 1 : 2;
}

double HtmlWorkload::lineWidth() const
{
    // The width of a cell and of the room beside a float is for Qt to find: it may be nothing.
    const double free = layoutWidth - m_block.sideways - m_sheet.sideways;
    return m_tables.empty() && m_floats == 0 ? free : 0;
}

void HtmlWorkload::endWord()
{
    if (m_block.wordUnits >= plainWord) {
        const double perLine = lineWidth() / (narrowAdvance * std::max(1.0, m_block.fontSize));
        m_tangle += m_block.wordCharacters * m_block.wordUnits / 2 / std::max(1.0, perLine) *
                    wordTime * passes();
    }
    if (m_block.wordImageHeight > 0) {
        // A picture gives its height to all lines of the word that it touches.
        const double perLine = lineWidth() / (wideAdvance * std::max(1.0, m_block.fontSize));
        const double lines = 1 + m_block.wordCharacters / std::max(1.0, perLine);
        m_block.imageHeight += lines * m_block.wordImageHeight;
    }
    m_block.wordCharacters = 0;
    m_block.wordUnits = 0;
    m_block.wordImageHeight = 0;
}

void HtmlWorkload::endBlock()
{
    endWord();
    const double font = std::max(m_block.fontSize, ordinaryFont);
    const double width = lineWidth();
    const double pieces = m_block.characters + m_block.images;
    const double lines = width < 2 * font ? pieces : std::min(pieces, 2 * m_block.advance / width);
    const double count = std::ceil(lines) + 1 + m_block.forcedLines;
    const double factor = std::max(m_block.lineFactor, m_sheet.lineFactor);
    const double lineHeight =
        std::max({linePerFont * font * factor, m_block.lineHeight, m_sheet.lineHeight});
    m_heights.back() += count * lineHeight + m_block.imageHeight * std::max(1.0, factor);
    m_work += count * lineTime * ordinaryPasses();
    m_tangle += count * (lineTime * (passes() - ordinaryPasses()) + m_floats * floatPerLineTime);
    if (m_block.characters > longestParagraph || m_block.advance > greatestWidth) {
        fail(HtmlExcess::Paragraph);
    }
    if (std::accumulate(m_heights.begin(), m_heights.end(), 0.0) > greatestHeight) {
        fail(HtmlExcess::Height);
    }
    checkLimits();
    m_block = Block();
}

void HtmlWorkload::noteFont()
{
    const Element &element = top();
    m_block.fontSize = std::max({m_block.fontSize, element.fontSize, m_sheet.fontSize});
    m_block.lineHeight = std::max(m_block.lineHeight, element.lineHeight);
    m_block.lineFactor = std::max(m_block.lineFactor, element.lineFactor);
    m_block.sideways = std::max(m_block.sideways, element.sideways);
    if (element.fontKey != m_lastFont) {
        m_lastFont = element.fontKey;
        m_tangle += m_fonts.insert(m_lastFont).second ? fontTime : 0;
    }
}

void HtmlWorkload::addNarrow(int count)
{
    const Element &element = top();
    const double spacing = element.letterSpacing + m_sheet.letterSpacing;
    m_block.characters += count;
    m_block.advance += count * (narrowAdvance * element.fontSize + spacing);
}

void HtmlWorkload::addOdd(uint code, uint before)
{
    noteFont();
    m_block.characters += 1;
    m_block.advance += top().fontSize + top().letterSpacing + m_sheet.letterSpacing;
    if (scriptClass(code) != scriptClass(before)) {
        m_work += scriptChangeTime;
        m_block.wordUnits += changeUnits;
    }
    if (mayBreakAround(code)) {
        endWord();
        return;
    }
    m_block.wordCharacters += 1;
    m_block.wordUnits += 1;
}

int HtmlWorkload::addSpecial(QStringView text, int pos)
{
    uint code = text[pos].unicode();
    int length = 1;
    if (code == '&') {
        const HtmlEntity entity = readEntity(text, pos);
        if (entity.length > 0) {
            length = entity.length;
            code = entity.code;
        }
    }
    const bool block = code == 0x2029 || code == 0xfdd0 || code == 0xfdd1;
    if (block || ((code == '\n' || code == '\r') && m_keepsSpace && !m_richText)) {
        startBlock(true);
        noteFont();
    } else if (code == 0x2028) {
        endWord();
        m_block.forcedLines += 1;
    } else if ((code == '\n' || code == '\r') && m_richText) {
        // Left out without a trace, so the word goes on.
        m_work += characterTime;
    } else if (code == ' ' || (code >= '\t' && code <= '\r')) {
        endWord();
        addNarrow(1);
        m_work += code == '\t' ? tabTime : 0;
    } else {
        addOdd(code, pos > 0 ? text[pos - 1].unicode() : 'a');
    }
    return length;
}

void HtmlWorkload::text(QStringView text)
{
    if ((!m_keepsSpace || m_richText) && std::all_of(text.begin(), text.end(), isLayoutSpace)) {
        m_work += closeTagTime;
        endWord();
        return;
    }
    noteFont();
    m_work += textRunTime + double(text.size()) * characterTime * ordinaryPasses();
    m_tangle += double(text.size()) * characterTime * (passes() - ordinaryPasses());
    if (m_blockClosed) {
        // Text behind a closed block gets one of its own, often.
        m_blockClosed = false;
        m_block.forcedLines += 1;
        m_work += blockTime;
        m_memory += blockMemory;
    }
    if (m_block.wordCharacters > 0) {
        m_block.wordUnits += changeUnits;
    }
    const int size = int(text.size());
    for (int i = 0; i < size;) {
        const int begin = i;
        while (i < size && text[i].unicode() > 0x20 && text[i].unicode() < 0x7f &&
               text[i] != QLatin1Char('&')) {
            ++i;
        }
        if (i > begin) {
            addNarrow(i - begin);
            m_block.wordCharacters += i - begin;
            m_block.wordUnits += i - begin;
        }
        if (i < size) {
            i += addSpecial(text, i);
        }
    }
    checkLimits();
}

} // namespace lctrlsex
