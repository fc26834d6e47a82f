#include "rowheights.h"

#include "rowmodeller.h"

#include <QAbstractTextDocumentLayout>
#include <QTextLayout>

namespace player {

using namespace lctrlsex;

namespace {

constexpr int MostMeasured = 20000;
/** Text that needs more than that share of a line is broken to see whether it fits. */
constexpr qreal SafeShare = 0.9;

} // namespace

RowHeights::RowHeights(const ItemTemplate *rows, const FillSources &sources,
                       const PageDocuments *documents)
    : m_rows(*rows)
    , m_sources(sources)
    , m_documents(*documents)
    , m_models(size_t(rows->templateCount()))
{}

qreal RowHeights::tableHeight(const QString &markup, int row)
{
    Q_UNUSED(m_documents.loadRows(&m_document, markup, row))
    return m_document.documentLayout()->documentSize().height();
}

qreal RowHeights::frameHeight()
{
    if (m_frame < 0) {
        const QString row = QStringLiteral("<tr><td>.</td></tr>");
        m_frame = 2 * tableHeight(row, 0) - tableHeight(row + row, 0);
    }
    return m_frame;
}

qreal RowHeights::measured(int row)
{
    const QString markup = m_rows.expandedRows(row, row + 1);
    const auto known = m_measured.constFind(markup);
    if (known != m_measured.constEnd()) {
        return *known;
    }
    const qreal height = tableHeight(markup, row) - frameHeight();
    if (m_measured.size() >= MostMeasured) {
        m_measured.clear();
    }
    m_measured.insert(markup, height);
    return height;
}

RowHeights::Model &RowHeights::model(int row)
{
    Model &known = m_models[size_t(m_rows.templateOf(row))];
    if (!known.isKnown) {
        known.isKnown = true;
        Modeller(this, row).run(&known);
    }
    return known;
}

qreal RowHeights::height(int row)
{
    const Model &of = model(row);
    if (!of.isUsable) {
        return measured(row);
    }
    qreal height = of.least;
    for (const Cell &cell : of.cells) {
        qreal text = cell.around;
        for (const Paragraph &paragraph : cell.paragraphs) {
            text += paragraphHeight(paragraph, of, row);
        }
        height = qMax(height, text);
    }
    return height;
}

CharWidths *RowHeights::fontFor(const QFont &font)
{
    std::shared_ptr<CharWidths> &known = m_fonts[font.key()];
    if (!known) {
        known = std::make_shared<CharWidths>(font);
    }
    return known.get();
}

CharWidths *RowHeights::fontOf(const Run &run, const FilledText &text, int line)
{
    const int condition =
        run.style < 0 ? LineStyles::None : text.condition(run.style, line, m_sources);
    if (condition == LineStyles::None) {
        return run.font;
    }
    const FontStyle &look = m_sources.styles->look(text.rule(run.style), condition);
    QFont font = run.font->font();
    if (!look.fontName.isEmpty()) {
        font.setFamily(look.fontName);
    }
    if (look.fontSize > 0) {
        font.setPixelSize(look.fontSize);
    }
    font.setWeight(look.bold ? QFont::Bold : QFont::Normal);
    font.setItalic(look.italic);
    return fontFor(font);
}

qreal RowHeights::paragraphHeight(const Paragraph &paragraph, const Model &of, int row)
{
    const FilledText &text = m_rows.filled(m_rows.templateOf(row));
    const int line = m_rows.lineOf(row);
    qreal width = 0;
    LineExtent extent{0, 0, -1000}; // until there is something on the line
    bool isSafe = true;
    QVector<CharWidths *> fonts; // only where styles may change them
    const bool isStyled = std::any_of(paragraph.runs.begin(), paragraph.runs.end(),
                                      [](const Run &run) { return run.style >= 0; });
    m_values.resize(paragraph.runs.size());
    for (int i = 0; i < paragraph.runs.size(); ++i) {
        const Run &run = paragraph.runs.at(i);
        CharWidths *font = isStyled ? fontOf(run, text, line) : run.font;
        if (isStyled) {
            fonts.append(font);
        }
        QString &value = m_values[i];
        value = run.slot < 0 ? run.text : text.value(run.slot, line, m_sources);
        if (value.isEmpty()) {
            extent.unite(font->extent()); // by what keeps its height
        }
        isSafe = isSafe && value.size() <= LongestValue && font->add(value, &width, &extent);
    }
    if (isSafe && width < SafeShare * paragraph.width) {
        return paragraph.format.lineHeight(extent.height(), 1);
    }
    for (int i = 0; i < paragraph.runs.size(); ++i) {
        if (paragraph.runs.at(i).slot >= 0) {
            m_values[i] = shownText(m_values.at(i));
        }
    }
    return brokenHeight(paragraph, of, fonts);
}

/** The height of the lines that m_values make. */
qreal RowHeights::brokenHeight(const Paragraph &paragraph, const Model &of,
                               const QVector<CharWidths *> &fonts) const
{
    QString text;
    QVector<QTextLayout::FormatRange> formats;
    for (int i = 0; i < paragraph.runs.size(); ++i) {
        QTextLayout::FormatRange range;
        range.start = text.size();
        range.length = m_values.at(i).size();
        range.format.setFont((fonts.isEmpty() ? paragraph.runs.at(i).font : fonts.at(i))->font());
        formats.append(range);
        text += m_values.at(i);
    }
    QTextLayout layout(text, paragraph.runs.constFirst().font->font());
    layout.setTextOption(of.option);
    layout.setFormats(formats);
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(paragraph.width);
        height += paragraph.format.lineHeight(LineExtent::of(line).height(), 1);
    }
    layout.endLayout();
    return height;
}

} // namespace player
