#include "drawnicons.h"
#include "wallpanel.h"
#include "wallplayer.h"
#include "wallview.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
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

} // namespace

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
    m_play = flatButton(QStringLiteral("WallPlay"), this);
    m_stop = flatButton(QStringLiteral("WallStop"), this);
    m_playLabel = new QLabel(this);
    m_playLabel->setObjectName(QStringLiteral("WallPlayLabel"));
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
    row->addSpacing(6);
    row->addWidget(m_play);
    row->addWidget(m_stop);
    row->addWidget(m_playLabel);
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

void WallPanel::updateControls()
{
    const int page = m_item ? std::min(m_item->GetCurrentPage(), m_item->GetPageCount()) : 0;
    const int count = m_item ? m_item->GetPageCount() : 0;
    m_pageLabel->setText(pageOfText());
    m_previous->setEnabled(!m_player->isOn() && page > 1);
    m_next->setEnabled(!m_player->isOn() && page < count);
    m_previous->setVisible(count > 0);
    m_next->setVisible(count > 0);
    m_screenLabel->setText(m_screen ? tr("%1, %2 × %3 pixels")
                                          .arg(m_screen->name())
                                          .arg(m_screen->Size().width())
                                          .arg(m_screen->Size().height())
                                    : QString());
    updatePlayControls();
    const WallScale scale = m_view->scale();
    const QString fitted =
        scale.divisor > 1 ? tr("Fit (1/%1)").arg(scale.divisor) : tr("Fit (%1×)").arg(scale.factor);
    m_zoom->setItemText(0, m_view->zoom() == 0 ? fitted : tr("Fit"));
    m_zoom->setCurrentIndex(m_view->zoom());
    m_zoomIn->setEnabled(scale.factor < LargestWallFactor);
    m_zoomOut->setEnabled(scale.factor > 1 || (scale.divisor == 1 && m_view->zoom() != 0));
    emit statusChanged();
}

void WallPanel::updateIcons()
{
    m_previous->setIcon(drawnIcon(Drawing::Previous, palette()));
    m_next->setIcon(drawnIcon(Drawing::Next, palette()));
    const bool plays = m_player->state() == WallPlayer::Playing;
    m_play->setIcon(drawnIcon(plays ? Drawing::Pause : Drawing::Play, palette()));
    m_stop->setIcon(drawnIcon(Drawing::Stop, palette()));
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
    name(m_stop, tr("Stop and show the edited page (Shift+F5)"));
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
