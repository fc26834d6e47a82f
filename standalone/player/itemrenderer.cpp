#include "itemrenderer.h"

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

ItemRenderer::ItemRenderer(LTextEffectNode *node, const QString &place, const QSize &size)
    : m_place(place)
    , m_style(pageStyleOf(node))
    , m_finish(pageFinishOf(node))
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
    if (node == nullptr || !load(*node)) {
        return;
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
    for (const ItemDocument::DeniedResource &denied : m_document.deniedResources()) {
        problem(Problem::Error, ItemRendererTexts::tr("image %1").arg(denied.name), denied.reason,
                QString());
    }
    for (const QString &family : missingFamilies(m_document, node->GetFontFamily())) {
        problem(Problem::Error, ItemRendererTexts::tr("font %1").arg(family),
                ItemRendererTexts::tr("it is not installed, another font would be shown"),
                ItemRendererTexts::tr("install the font or choose another one"));
    }
}

ItemRenderer::~ItemRenderer() = default;

bool ItemRenderer::load(const LTextEffectNode &node)
{
    // The raw text is what the author edited; an item that was never edited here may have the
    // display text alone.
    QString html = node.GetHtmlText();
    const QString stored = node.GetRawHtmlText();
    if (!stored.isEmpty()) {
        const DecodedDocument decoded = decodeDocument(stored);
        if (!decoded.error.isEmpty()) {
            problem(
                Problem::Error, ItemRendererTexts::tr("document"), decoded.error,
                ItemRendererTexts::tr(
                    "restore the programme file from a copy; the stored text is kept as it is"));
            return false;
        }
        html = decoded.html;
    }
    const GuardedHtml guarded = guardHtml(html);
    if (!guarded.accepted) {
        problem(Problem::Error,
                ItemRendererTexts::tr("document line %1 column %2")
                    .arg(guarded.line)
                    .arg(guarded.column),
                guarded.reason, guarded.remedy);
        return false;
    }
    m_document.loadItem(guarded.html, textSettingsOf(&node));
    return true;
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

QImage ItemRenderer::page(int index)
{
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
