#include "itemtemplate.h"

#include "templatebuilder.h"

namespace player {

ItemTemplate::ItemTemplate(const StoredItem &item, const sources::DataSnapshot &data, int width,
                           const FillSources &sources)
    : m_sources(sources)
{
    TemplateBuilder(this, item, width).build(data);
}

bool ItemTemplate::beginsPage(int row) const
{
    const int i = row - m_before;
    return m_group > 0 && i > 0 && i < m_repeated && i % m_group == 0;
}

int ItemTemplate::frozenRow(int row) const
{
    const int i = row - m_before;
    const int top = m_isSheet ? m_before + i / m_group * m_group : 0;
    return m_isFrozen && top < row ? top : -1;
}

int ItemTemplate::templateOf(int row) const
{
    if (row < m_before) {
        return row;
    }
    const int i = row - m_before;
    if (i >= m_repeated) {
        return templateCount() - (m_rowCount - row);
    }
    const bool isLastSheet = !m_lastTableTag.isEmpty() && i >= m_repeated - m_group;
    return m_before + i % m_cycle + (isLastSheet ? m_cycle : 0);
}

int ItemTemplate::lineOf(int row) const
{
    const int i = row - m_before;
    return i < 0 || i >= m_repeated ? -1 : i / m_cycle * m_linesPerCycle;
}

void ItemTemplate::appendRows(QString *html, int from, int to) const
{
    if (from >= to) {
        return;
    }
    constexpr int UsualValue = 12;
    const TemplateText &text = filled(templateOf(from)).text();
    html->reserve(html->size() +
                  (to - from) * (text.literalLength() + UsualValue * text.slotList().size()));
    for (int row = from; row < to; ++row) {
        filled(templateOf(row)).append(html, lineOf(row), m_sources);
    }
}

QString ItemTemplate::expandedRows(int from, int to) const
{
    QString html;
    appendRows(&html, qMax(0, from), qMin(to, m_rowCount));
    return html;
}

QString ItemTemplate::tableTag(int row) const
{
    const bool isLastSheet = row - m_before >= m_repeated - m_group && row - m_before < m_repeated;
    return m_isSheet && isLastSheet && !m_lastTableTag.isEmpty() ? m_lastTableTag
                                                                 : m_parts.tableTag;
}

QString ItemTemplate::prologue() const
{
    QString html;
    m_prologue.append(&html, -1, m_sources);
    return html;
}

QString ItemTemplate::epilogue() const
{
    QString html;
    m_epilogue.append(&html, -1, m_sources);
    return html;
}

} // namespace player
