#include "boundpages.h"

#include "keysuggestion.h"
#include "shorttext.h"
#include "stretchedrows.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QTextBlock>

namespace player {

using namespace lctrlsex;

namespace {

/** Texts of this file, under one name for translators. */
struct BoundPagesTexts
{
    Q_DECLARE_TR_FUNCTIONS(BoundPages)
};

/** What sticks out by less than half a pixel is not seen. */
constexpr qreal Tolerance = 0.5;
constexpr int NameShown = 40;

bool hasInk(const QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!block.text().trimmed().isEmpty() ||
            block.blockFormat().background().style() != Qt::NoBrush) {
            return true;
        }
    }
    return false;
}

QStringList sorted(const QSet<QString> &names)
{
    QStringList list = names.values();
    list.sort();
    return list;
}

qreal heightOf(const QTextDocument &document)
{
    return document.documentLayout()->documentSize().height();
}

PageSlice wholePage(qreal height, bool isCut = false)
{
    return {0, height, 0, isCut};
}

} // namespace

BoundPages::BoundPages(const StoredItem &item, const sources::DataSnapshot &data,
                       const PageStyle &style)
    : m_item(item)
    , m_style(style)
    , m_data(data)
    , m_values(data, {item.calculations, item.source})
    , m_styles(item.styles, &m_values)
    , m_images(item.text.antialias)
    , m_rows(m_item, data, style.size.width(), {&m_values, &m_styles, &m_images})
    , m_documents(&m_rows, &m_images, &m_item, style.size.width())
    , m_heights(&m_rows, {&m_values, &m_styles, &m_images}, &m_documents)
{}

/** Finds the pages of the text in front of the table and the rows behind it. */
void BoundPages::begin()
{
    m_isBegun = true;
    const qreal height = m_style.size.height();
    Q_UNUSED(m_documents.loadRows(&m_document, QStringLiteral("<tr><td>.</td></tr>"), 0))
    m_tail = heightOf(m_document) - tableBottom(m_document);
    Q_UNUSED(m_documents.load(&m_document, {0, 0, true, false}))
    const bool hasProlog = hasInk(m_document);
    m_first = hasProlog ? paginate(m_document, height) : QVector<PageSlice>{wholePage(height)};
    PageSlice &last = m_first.last();
    last.bottom = last.top + height - last.drawnAt;
    // A header does not stay alone at the bottom of a page.
    const bool keepsHeader = m_item.hasHeader && m_item.tableType < StoredItem::Columns;
    int together = qMin(keepsHeader ? 2 : 1, m_rows.rowCount());
    qreal bottom = bottomOfFirst(together);
    if (together == 2 && bottom > last.bottom + Tolerance && !hasProlog) {
        together = 1; // no page holds both
        bottom = bottomOfFirst(together);
    }
    m_starts = {0};
    if (bottom <= last.bottom + Tolerance) {
        m_starts.append(fill(together, bottom, last.bottom + Tolerance));
    } else if (hasProlog) {
        m_starts.append(0);
    } else {
        last.cut = true;
        m_isLastCut = true;
        m_firstCut = 0;
        ++m_cutRows;
        m_starts.append(1);
    }
}

/** Where the first @p rows end below the text in front of them. */
qreal BoundPages::bottomOfFirst(int rows)
{
    m_loaded = -1;
    Q_UNUSED(m_documents.load(&m_document, {0, rows, true, false}))
    return heightOf(m_document) - m_tail;
}

/** The first row, from @p row on, that finds no room above @p limit below the others. */
int BoundPages::fill(int row, qreal bottom, qreal limit)
{
    const int count = m_rows.rowCount();
    for (; row < count && !m_rows.beginsPage(row); ++row) {
        bottom += m_heights.height(row);
        if (bottom > limit) {
            break;
        }
    }
    return row;
}

void BoundPages::addStretch()
{
    const int row = m_starts.constLast();
    const int frozen = m_rows.frozenRow(row);
    const qreal limit = m_style.size.height() + Tolerance;
    const qreal above =
        m_heights.frameHeight() - m_tail + (frozen >= 0 ? m_heights.height(frozen) : 0);
    const qreal bottom = above + m_heights.height(row);
    m_isLastCut = bottom > limit;
    if (m_isLastCut) {
        m_firstCut = m_cutRows == 0 ? row : m_firstCut;
        ++m_cutRows;
        m_starts.append(row + 1);
        return;
    }
    m_starts.append(fill(row + 1, bottom, limit));
}

/** Finds the pages of the text behind the table. */
void BoundPages::end()
{
    m_isComplete = true;
    const int height = m_style.size.height();
    Q_UNUSED(m_documents.load(&m_document, {0, 0, false, true}))
    m_loaded = -1;
    if (!hasInk(m_document)) {
        return;
    }
    if (m_isLastCut) {
        m_starts.append(m_rows.rowCount()); // pages of text without rows
    }
    Q_UNUSED(m_documents.load(&m_document, partOf(stretchCount() - 1)))
    m_last = paginate(m_document, height);
}

bool BoundPages::hasPage(int index)
{
    if (index < 0 || m_rows.state() != ItemTemplate::Bound) {
        return false;
    }
    if (!m_isBegun) {
        m_styles.renewBudget();
        begin();
    }
    while (!m_isComplete && placeOf(index).stretch >= stretchCount()) {
        if (m_starts.constLast() < m_rows.rowCount()) {
            addStretch();
        } else {
            end();
        }
    }
    // Whether text follows on the last page is known only at the end.
    if (!m_isComplete && placeOf(index).stretch == stretchCount() - 1 &&
        m_starts.constLast() == m_rows.rowCount()) {
        end();
    }
    const Place place = placeOf(index);
    return place.stretch < stretchCount() && place.slice < slicesOf(place.stretch).size();
}

int BoundPages::pageCount()
{
    constexpr int Beyond = std::numeric_limits<int>::max();
    if (m_rows.state() != ItemTemplate::Bound) {
        return 0;
    }
    Q_UNUSED(hasPage(Beyond))
    const int stretches = stretchCount();
    const int firstPages = slicesOf(0).size();
    return stretches == 1 ? firstPages
                          : firstPages + stretches - 2 + slicesOf(stretches - 1).size();
}

/** Only the first and the last stretch have several pages. */
BoundPages::Place BoundPages::placeOf(int page) const
{
    const int firstPages = slicesOf(0).size();
    if (page < firstPages) {
        return {0, page};
    }
    const int stretch = page - firstPages + 1;
    const int last = stretchCount() - 1;
    return m_isComplete && last > 0 && stretch > last ? Place{last, stretch - last}
                                                      : Place{stretch, 0};
}

PagePart BoundPages::partOf(int stretch) const
{
    return {m_starts.at(stretch), m_starts.at(stretch + 1), stretch == 0,
            m_isComplete && stretch == stretchCount() - 1};
}

QVector<PageSlice> BoundPages::slicesOf(int stretch) const
{
    if (m_isComplete && stretch == stretchCount() - 1 && !m_last.isEmpty()) {
        return m_last;
    }
    return stretch == 0 ? m_first : QVector<PageSlice>{wholePage(m_style.size.height())};
}

void BoundPages::load(int stretch)
{
    if (stretch == m_loaded) {
        return;
    }
    Q_UNUSED(m_documents.load(&m_document, partOf(stretch)))
    m_slices = slicesOf(stretch);
    m_loaded = stretch;
    if (m_item.fillsArea && m_slices.size() == 1) {
        stretchTables(&m_document, m_style.size.height());
    }
}

QImage BoundPages::page(int index)
{
    if (!hasPage(index)) {
        return {};
    }
    m_styles.renewBudget();
    const Place place = placeOf(index);
    load(place.stretch);
    return drawSlice(&m_document, m_style, m_slices.at(place.slice));
}

QPair<int, int> BoundPages::rowsOf(int index)
{
    if (!hasPage(index)) {
        return {0, 0};
    }
    const PagePart part = partOf(placeOf(index).stretch);
    return {part.from, part.to};
}

QSet<QString> BoundPages::sources() const
{
    QSet<QString> sources = m_values.usedSources();
    if (state() == ItemTemplate::Bound) {
        sources.insert(m_values.lines().source());
    }
    return sources;
}

QString BoundPages::filledText(const QString &html)
{
    const FillSources sources{&m_values, &m_styles, &m_images};
    QString result;
    FilledText(TemplateText(html), Placeholders::OfItem, sources).append(&result, -1, sources);
    return result;
}

Problems BoundPages::problems() const
{
    Problems problems = m_rows.problems();
    const auto warn = [&problems](const QString &part, const QString &reason,
                                  const QString &remedy) {
        problems.append({Problem::Warning, part, reason, remedy});
    };
    if (m_cutRows > 0) {
        warn(BoundPagesTexts::tr("table"),
             BoundPagesTexts::tr("%n row(s) are higher than a page, the first is row %1", nullptr,
                                 m_cutRows)
                 .arg(m_firstCut + 1),
             BoundPagesTexts::tr("use a smaller font or a higher item"));
    }
    for (const QString &key : sorted(m_values.unresolvedKeys())) {
        warn(BoundPagesTexts::tr("field \"%1\"").arg(shortText(key, NameShown)),
             BoundPagesTexts::tr("it leads to no data"), keyRemedy(m_data, key));
    }
    for (const QString &id : sorted(m_styles.unknownIds())) {
        warn(BoundPagesTexts::tr("conditional style \"%1\"").arg(shortText(id, NameShown)),
             BoundPagesTexts::tr("there is none of that identifier"),
             BoundPagesTexts::tr("choose another style for the text that has it"));
    }
    const QMap<QString, QString> &failed = m_values.failedCalculations();
    for (auto it = failed.begin(); it != failed.end(); ++it) {
        warn(BoundPagesTexts::tr("calculation \"%1\"").arg(shortText(it.key(), NameShown)),
             BoundPagesTexts::tr("it has no result: %1").arg(it.value()),
             BoundPagesTexts::tr("its default is shown; change the step or the data"));
    }
    if (!m_documents.refusal().reason.isEmpty()) {
        problems.append(m_documents.refusal());
    }
    return problems;
}

} // namespace player
