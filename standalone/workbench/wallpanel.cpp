#include "wallpanel.h"

#include "itempages.h"
#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "wallplayer.h"
#include "wallview.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QSet>
#include <QToolButton>

namespace workbench {

namespace {

/** Whether an attribute tells where and how large something is, or how it is called. */
bool movesThings(const QString &key)
{
    static const QSet<QString> keys{QStringLiteral("Name"), QStringLiteral("Width"),
                                    QStringLiteral("Height"), QStringLiteral("X"),
                                    QStringLiteral("Y")};
    return keys.contains(key);
}

} // namespace

WallPanel::WallPanel(ItemPages *pages, QWidget *parent)
    : QWidget(parent)
    , m_pages(pages)
    , m_view(new WallView(this))
    , m_player(new WallPlayer(pages, m_view))
{
    setObjectName(QStringLiteral("WallPanel"));
    m_rebuild.setSingleShot(true);
    m_rebuild.setInterval(0);
    connect(&m_rebuild, &QTimer::timeout, this, &WallPanel::rebuild);
    buildControls();
    connectView();
    connectPlayer();
    connect(m_pages, &ItemPages::pagesChanged, this, &WallPanel::showPages);
    retranslate();
    updateIcons();
    rebuild();
}

void WallPanel::setCurrent(LNode *selected, LTextEffectNode *item)
{
    LScreenNode *screen = selected != nullptr ? selected->GetScreenNode() : nullptr;
    if (screen == nullptr && item != nullptr) {
        screen = item->GetScreenNode();
    }
    m_screen = screen;
    m_item = item;
    rebuild();
}

void WallPanel::clear()
{
    m_screen.clear();
    m_item.clear();
    rebuild();
}

void WallPanel::watch(LNode *node)
{
    m_watched.append(node);
    connect(node, &LData::AttributeChanged, this, [this](const QString &key) {
        if (movesThings(key)) {
            scheduleRebuild();
        }
    });
    connect(node, &LNode::ChildInserted, this, &WallPanel::scheduleRebuild);
    connect(node, &LNode::ChildRemoved, this, &WallPanel::scheduleRebuild);
    connect(node, &LNode::ChildMoved, this, &WallPanel::scheduleRebuild);
}

void WallPanel::unwatchAll()
{
    for (const QPointer<LNode> &node : qAsConst(m_watched)) {
        if (node) {
            node->disconnect(this);
        }
    }
    m_watched.clear();
}

void WallPanel::scheduleRebuild()
{
    m_rebuild.start();
}

QVector<WallPanel::ShownItem> WallPanel::itemsOf(LScreenNode *screen) const
{
    QVector<ShownItem> items;
    const QList<LNode *> frames = screen->ChildNodes();
    for (LNode *child : frames) {
        const auto *frame = qobject_cast<LFrameNode *>(child);
        if (frame == nullptr) {
            continue;
        }
        const FramePlay *const play = m_player->playOf(frame);
        LTextEffectNode *shown = play != nullptr ? play->item() : nullptr;
        const QList<LNode *> children = frame->ChildNodes();
        for (LNode *candidate : children) {
            auto *item = qobject_cast<LTextEffectNode *>(candidate);
            if (item != nullptr && (shown == nullptr || (play == nullptr && item == m_item))) {
                shown = item;
            }
        }
        // An item that is smaller than its frame lies at the frame's corner.
        if (shown != nullptr) {
            items.append({child, shown, QRect(frame->GetRect().topLeft(), shown->Size())});
        }
    }
    return items;
}

void WallPanel::rebuild()
{
    m_rebuild.stop();
    unwatchAll();
    m_shown.clear();
    WallScene scene;
    m_player->setScreen(m_screen);
    if (m_screen) {
        m_shown = itemsOf(m_screen);
        scene.size = m_screen->Size();
        watch(m_screen);
        if (LControllerNode *controller = m_screen->GetControllerNode()) {
            watch(controller);
        }
        const QList<LNode *> frames = m_screen->ChildNodes();
        for (LNode *frame : frames) {
            watch(frame);
        }
    }
    for (const ShownItem &shown : qAsConst(m_shown)) {
        watch(shown.node);
        scene.items.append(
            {shown.rect, pictureOf(shown.node), shown.node->name(), shown.node == m_item});
    }
    if (m_item) {
        connect(m_item, &LTextEffectNode::PreviewCacheChanged, this, &WallPanel::showPreview);
        m_shownPage = m_item->GetCurrentPage();
        connect(m_item, &LTextEffectNode::PlayIndexChanged, this, &WallPanel::followPage);
    }
    m_view->setScene(scene);
    updateControls();
}

QImage WallPanel::pictureOf(LTextEffectNode *node) const
{
    if (const FramePlay *play = m_player->playOf(node->ParentNode())) {
        return play->picture();
    }
    // A page strip belongs to the current item only, so any other shows its first page.
    const int page = node == m_item ? node->GetCurrentPage() : 1;
    return m_pages->page(node, std::max(1, page) - 1);
}

void WallPanel::showPages(LTextEffectNode *node)
{
    // What plays follows by itself.
    for (int i = 0; i < m_shown.size(); ++i) {
        if (!m_player->isOn() && node != nullptr && m_shown.at(i).node == node) {
            const QImage picture = pictureOf(node);
            if (!picture.isNull() || !m_pages->isCounting(node)) {
                m_view->setPage(i, picture);
            }
        }
    }
    if (node == m_item) {
        updateControls();
    }
}

void WallPanel::followPage(int page)
{
    // Sent with every key, too; the picture of the same page comes as a preview then.
    if (page == m_shownPage) {
        updateControls();
        return;
    }
    m_shownPage = page;
    showPages(m_item);
}

void WallPanel::showPreview()
{
    for (int i = 0; i < m_shown.size(); ++i) {
        if (!m_player->isOn() && m_item && m_shown.at(i).node == m_item &&
            !m_item->PreviewCache().isNull()) {
            m_view->setPage(i, m_item->PreviewCache());
        }
    }
}

void WallPanel::turnTo(int page)
{
    if (!m_player->isOn() && m_item && page >= 1 && page <= m_item->GetPageCount()) {
        m_item->SetCurrentPage(page);
        m_item->PageChanged();
        emit statusChanged();
    }
}

void WallPanel::setShowsLeds(bool shows)
{
    m_grid->setChecked(shows);
}

void WallPanel::previousPage()
{
    turnTo(m_item ? m_item->GetCurrentPage() - 1 : 0);
}

void WallPanel::nextPage()
{
    turnTo(m_item ? m_item->GetCurrentPage() + 1 : 0);
}

LTextEffectNode *WallPanel::nodeAt(int index) const
{
    return index >= 0 && index < m_shown.size() ? m_shown.at(index).node.data() : nullptr;
}

QString WallPanel::pageText() const
{
    return m_pageLabel->text();
}

QString WallPanel::zoomText() const
{
    return m_zoom->currentText();
}

void WallPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::PaletteChange) {
        updateIcons();
    }
    QWidget::changeEvent(event);
}

} // namespace workbench
