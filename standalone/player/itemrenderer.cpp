#include "itemrenderer.h"

#include "boundpages.h"
#include "contentplacement.h"
#include "documentstorage.h"
#include "fontcheck.h"
#include "htmlguard.h"
#include "ltexteffectnode.h"
#include "nodepage.h"

#include <QCoreApplication>

namespace player {

using namespace lctrlsex;

namespace {

/** Texts of this file, under one name for translators. */
struct ItemRendererTexts
{
    Q_DECLARE_TR_FUNCTIONS(ItemRenderer)
};

} // namespace

ItemRenderer::ItemRenderer(LTextEffectNode *node, const QString &place, const QSize &size,
                           const sources::DataSnapshot &data)
    : m_place(place)
    , m_style(pageStyleOf(node))
    , m_finish(pageFinishOf(node))
    , m_data(data)
{
    if (size.isValid()) {
        m_style.size = size;
    }
    if (!isPageSize(m_style.size)) {
        problem(Problem::Error, ItemRendererTexts::tr("size"),
                ItemRendererTexts::tr("%1 x %2 pixels is no page size")
                    .arg(m_style.size.width())
                    .arg(m_style.size.height()),
                ItemRendererTexts::tr("give both sides from 1 to %1 pixels, %2 million in all")
                    .arg(LongestPageSide)
                    .arg(MostPagePixels / 1000000));
        return;
    }
    if (node == nullptr || (!loadBound(*node) && !load(*node))) {
        return;
    }
    checkDocument(node->GetFontFamily());
}

ItemRenderer::~ItemRenderer() = default;

/** Makes the first page of a bound table; false when there is none. */
bool ItemRenderer::loadBound(const LTextEffectNode &node)
{
    if (m_data.isEmpty()) {
        return false;
    }
    m_bound = std::make_unique<BoundPages>(storedItemOf(&node), m_data, m_style);
    // Without memory for its first page the table is left to what shows other items.
    m_isBound = m_bound->state() == ItemTemplate::Bound && !m_bound->page(0).isNull();
    return m_isBound;
}

bool ItemRenderer::load(const LTextEffectNode &node)
{
    const QString html = readHtml(node);
    if (html.isNull()) {
        return false;
    }
    const GuardedHtml guarded = guardHtml(m_bound ? m_bound->filledText(html) : html);
    if (!guarded.accepted) {
        problem(Problem::Error,
                ItemRendererTexts::tr("document line %1 column %2")
                    .arg(guarded.line)
                    .arg(guarded.column),
                guarded.reason, guarded.remedy);
        return false;
    }
    m_document.loadItem(guarded.html, textSettingsOf(&node));
    if (m_bound) {
        m_bound->moveImagesTo(&m_document);
    }
    // A height of 0 and not setTextWidth(): with that one Qt lays out for ever what ends just below
    // pixel 8 388 607.
    m_document.setPageSize(QSizeF(m_style.size.width(), 0));
    m_slices = paginate(m_document, m_style.size.height());
    if (m_slices.size() == MostPages) {
        problem(Problem::Error, ItemRendererTexts::tr("text"),
                ItemRendererTexts::tr("it has more than %1 pages").arg(MostPages),
                ItemRendererTexts::tr("make the item higher or its text shorter"));
    }
    return true;
}

/** The document that the author edited; null when it cannot be read. */
QString ItemRenderer::readHtml(const LTextEffectNode &node)
{
    // The raw text is what the author edited; an item that was never edited here may have the
    // display text alone.
    const QString stored = node.GetRawHtmlText();
    if (stored.isEmpty()) {
        return node.GetHtmlText() + QLatin1String("");
    }
    const DecodedDocument decoded = decodeDocument(stored);
    if (!decoded.error.isEmpty()) {
        problem(Problem::Error, ItemRendererTexts::tr("document"), decoded.error,
                ItemRendererTexts::tr(
                    "restore the programme file from a copy; the stored text is kept as it is"));
        return QString();
    }
    return decoded.html + QLatin1String("");
}

void ItemRenderer::checkDocument(const QString &itemFamily)
{
    for (const ItemDocument::DeniedResource &denied : document().deniedResources()) {
        problem(Problem::Error, ItemRendererTexts::tr("image %1").arg(denied.name), denied.reason,
                QString());
    }
    for (const QString &family : missingFamilies(document(), itemFamily)) {
        problem(Problem::Error, ItemRendererTexts::tr("font %1").arg(family),
                ItemRendererTexts::tr("it is not installed, another font would be shown"),
                ItemRendererTexts::tr("install the font or choose another one"));
    }
}

void ItemRenderer::problem(Problem::Severity severity, const QString &part, const QString &reason,
                           const QString &remedy)
{
    m_problems.append({severity, m_place + QStringLiteral(": ") + part, reason, remedy});
}

QColor ItemRenderer::groundColor() const
{
    if (!m_style.isTransparent) {
        return m_style.background;
    }
    return m_finish.textTransparent ? QColor(Qt::transparent) : canvasColor();
}

Problems ItemRenderer::problems() const
{
    Problems all = m_problems;
    if (m_bound) {
        for (Problem found : m_bound->problems()) {
            found.place = m_place + QStringLiteral(": ") + found.place;
            all.append(found);
        }
    }
    return all;
}

bool ItemRenderer::hasPages() const
{
    return m_isBound || !m_slices.isEmpty();
}

bool ItemRenderer::hasPage(int index) const
{
    return index >= 0 && (m_isBound ? m_bound->hasPage(index) : index < m_slices.size());
}

int ItemRenderer::pageCount() const
{
    return m_isBound ? m_bound->pageCount() : m_slices.size();
}

ItemDocument &ItemRenderer::document()
{
    return m_isBound ? m_bound->document() : m_document;
}

QVector<PageSlice> ItemRenderer::slices() const
{
    return m_isBound ? m_bound->slices() : m_slices;
}

QSet<QString> ItemRenderer::sources() const
{
    return m_bound ? m_bound->sources() : QSet<QString>();
}

QImage ItemRenderer::page(int index)
{
    if (m_isBound) {
        return m_bound->page(index);
    }
    if (index < 0 || index >= m_slices.size()) {
        return {};
    }
    return drawSlice(&m_document, m_style, m_slices.at(index));
}

QImage ItemRenderer::finishedPage(int index)
{
    return finishPage(page(index), m_style.size, m_finish, hostEffects());
}

} // namespace player
