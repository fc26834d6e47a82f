#include "wallpanel.h"

#include "drawnicons.h"
#include "itempages.h"
#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "wallview.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSet>
#include <QToolButton>

namespace workbench {

namespace {

QToolButton *flatButton(const QString &name, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(name);
    button->setAutoRaise(true);
    return button;
}

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
{
    setObjectName(QStringLiteral("WallPanel"));
    m_rebuild.setSingleShot(true);
    m_rebuild.setInterval(0);
    connect(&m_rebuild, &QTimer::timeout, this, &WallPanel::rebuild);
    buildControls();
    connectView();
    connect(m_pages, &ItemPages::pagesChanged, this, &WallPanel::showPages);
    retranslate();
    updateIcons();
    rebuild();
}

void WallPanel::buildControls()
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_view, 1);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(6, 3, 6, 3);
    row->setSpacing(4);
    m_previous = flatButton(QStringLiteral("WallPreviousPage"), this);
    m_pageLabel = new QLabel(this);
    m_pageLabel->setObjectName(QStringLiteral("WallPageLabel"));
    m_next = flatButton(QStringLiteral("WallNextPage"), this);
    m_screenLabel = new QLabel(this);
    m_screenLabel->setObjectName(QStringLiteral("WallScreenLabel"));
    m_screenLabel->setTextFormat(Qt::PlainText);
    m_screenLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_screenLabel->setAlignment(Qt::AlignCenter);
    m_grid = flatButton(QStringLiteral("WallLedGrid"), this);
    m_grid->setCheckable(true);
    m_grid->setChecked(m_view->showsLeds());
    m_zoomOut = flatButton(QStringLiteral("WallZoomOut"), this);
    m_zoomOut->setText(QStringLiteral("−"));
    m_zoom = new QComboBox(this);
    m_zoom->setObjectName(QStringLiteral("WallZoom"));
    m_zoom->setMinimumWidth(96);
    m_zoomIn = flatButton(QStringLiteral("WallZoomIn"), this);
    m_zoomIn->setText(QStringLiteral("+"));
    row->addWidget(m_previous);
    row->addWidget(m_pageLabel);
    row->addWidget(m_next);
    row->addWidget(m_screenLabel, 1);
    row->addWidget(m_grid);
    row->addSpacing(6);
    row->addWidget(m_zoomOut);
    row->addWidget(m_zoom);
    row->addWidget(m_zoomIn);
    column->addLayout(row);
}

void WallPanel::connectView()
{
    connect(m_previous, &QToolButton::clicked, this, &WallPanel::previousPage);
    connect(m_next, &QToolButton::clicked, this, &WallPanel::nextPage);
    connect(m_zoomIn, &QToolButton::clicked, m_view, &WallView::zoomIn);
    connect(m_zoomOut, &QToolButton::clicked, m_view, &WallView::zoomOut);
    connect(m_zoom, qOverload<int>(&QComboBox::activated), m_view, &WallView::setZoom);
    connect(m_grid, &QToolButton::toggled, this, [this](bool shows) {
        m_view->setShowsLeds(shows);
        emit ledGridChanged(shows);
    });
    connect(m_view, &WallView::scaleChanged, this, &WallPanel::updateControls);
    connect(m_view, &WallView::pageWanted, this,
            [this](int step) { step < 0 ? previousPage() : nextPage(); });
    connect(m_view, &WallView::itemClicked, this, [this](int index) {
        if (LTextEffectNode *node = nodeAt(index)) {
            emit itemClicked(node);
        }
    });
    connect(m_view, &WallView::itemActivated, this, [this](int index) {
        if (LTextEffectNode *node = nodeAt(index)) {
            emit itemActivated(node);
        }
    });
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
        LTextEffectNode *shown = nullptr;
        const QList<LNode *> children = frame->ChildNodes();
        for (LNode *candidate : children) {
            auto *item = qobject_cast<LTextEffectNode *>(candidate);
            if (item != nullptr && (shown == nullptr || item == m_item)) {
                shown = item;
            }
        }
        // An item that is smaller than its frame lies at the frame's corner.
        if (shown != nullptr) {
            items.append({shown, QRect(frame->GetRect().topLeft(), shown->Size())});
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
    // A page strip belongs to the current item only, so any other shows its first page.
    const int page = node == m_item ? node->GetCurrentPage() : 1;
    return m_pages->page(node, std::max(1, page) - 1);
}

void WallPanel::showPages(LTextEffectNode *node)
{
    for (int i = 0; i < m_shown.size(); ++i) {
        if (node != nullptr && m_shown.at(i).node == node) {
            m_view->setPage(i, pictureOf(node));
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
        if (m_item && m_shown.at(i).node == m_item && !m_item->PreviewCache().isNull()) {
            m_view->setPage(i, m_item->PreviewCache());
        }
    }
}

void WallPanel::turnTo(int page)
{
    if (m_item && page >= 1 && page <= m_item->GetPageCount()) {
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

void WallPanel::updateControls()
{
    const int page = m_item ? std::min(m_item->GetCurrentPage(), m_item->GetPageCount()) : 0;
    const int count = m_item ? m_item->GetPageCount() : 0;
    m_pageLabel->setText(m_item ? tr("Page %1 of %2").arg(page).arg(count) : QString());
    m_previous->setEnabled(page > 1);
    m_next->setEnabled(page < count);
    m_previous->setVisible(count > 0);
    m_next->setVisible(count > 0);
    m_screenLabel->setText(m_screen ? tr("%1, %2 × %3 pixels")
                                          .arg(m_screen->name())
                                          .arg(m_screen->Size().width())
                                          .arg(m_screen->Size().height())
                                    : QString());
    const WallScale scale = m_view->scale();
    const QString fitted =
        scale.divisor > 1 ? tr("Fit (1/%1)").arg(scale.divisor) : tr("Fit (%1×)").arg(scale.factor);
    m_zoom->setItemText(0, m_view->zoom() == 0 ? fitted : tr("Fit"));
    m_zoom->setCurrentIndex(m_view->zoom());
    m_zoomIn->setEnabled(scale.factor < LargestWallFactor);
    m_zoomOut->setEnabled(scale.factor > 1 || (scale.divisor == 1 && m_view->zoom() != 0));
    emit statusChanged();
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

void WallPanel::updateIcons()
{
    m_previous->setIcon(drawnIcon(Drawing::Previous, palette()));
    m_next->setIcon(drawnIcon(Drawing::Next, palette()));
    m_grid->setIcon(drawnIcon(Drawing::Grid, palette()));
}

void WallPanel::retranslate()
{
    const auto name = [](QWidget *widget, const QString &text) {
        widget->setToolTip(text);
        widget->setAccessibleName(text);
    };
    name(m_previous, tr("Previous page (Page Up)"));
    name(m_next, tr("Next page (Page Down)"));
    name(m_grid, tr("Show pixels as round LEDs, from 4× on"));
    name(m_zoomOut, tr("Smaller pixels"));
    name(m_zoomIn, tr("Larger pixels"));
    name(m_zoom, tr("Size of a screen pixel"));
    if (m_zoom->count() == 0) {
        m_zoom->addItem(QString());
        for (int factor = 1; factor <= LargestWallFactor; ++factor) {
            m_zoom->addItem(QString());
        }
    }
    for (int factor = 1; factor <= LargestWallFactor; ++factor) {
        m_zoom->setItemText(factor, tr("%1×").arg(factor));
    }
    m_view->setEmptyText(tr("No screen is selected. Select one in the programme to see it here."));
    updateControls();
}

} // namespace workbench
