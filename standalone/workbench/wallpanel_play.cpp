#include "wallpanel.h"
#include "wallplayer.h"
#include "wallview.h"

#include <QLabel>
#include <QToolButton>

namespace workbench {

void WallPanel::connectPlayer()
{
    connect(m_play, &QToolButton::clicked, m_player, &WallPlayer::toggle);
    connect(m_stop, &QToolButton::clicked, m_player, &WallPlayer::stop);
    connect(m_player, &WallPlayer::stateChanged, this, [this] {
        updateIcons();
        updateControls();
    });
    connect(m_player, &WallPlayer::itemChanged, this, &WallPanel::rebuild);
    connect(m_player, &WallPlayer::pictureChanged, this, &WallPanel::showPlayed);
    connect(m_player, &WallPlayer::advanced, this, &WallPanel::updatePlayTexts);
}

const FramePlay *WallPanel::currentPlay() const
{
    return m_item ? m_player->playOf(m_item->ParentNode()) : nullptr;
}

void WallPanel::showPlayed(const LNode *frame)
{
    const FramePlay *const play = m_player->playOf(frame);
    for (int i = 0; i < m_shown.size() && play != nullptr; ++i) {
        if (m_shown.at(i).frame == frame) {
            m_view->setPage(i, play->picture());
        }
    }
}

void WallPanel::updatePlayControls()
{
    const bool plays = m_player->state() == WallPlayer::Playing;
    const QString text = plays ? tr("Pause (F5)") : tr("Play the screen (F5)");
    m_play->setToolTip(text);
    m_play->setAccessibleName(text);
    m_play->setEnabled(m_screen);
    m_stop->setEnabled(m_player->isOn());
    updatePlayTexts();
}

void WallPanel::updatePlayTexts()
{
    QString phase;
    if (const FramePlay *play = currentPlay()) {
        switch (play->moment().phase) {
        case player::PlayPhase::ComingIn:
            phase = tr("coming in");
            break;
        case player::PlayPhase::Clearing:
            phase = tr("going out");
            break;
        default:
            phase = tr("held");
        }
    }
    const qint64 seconds = m_player->elapsed() / 1000;
    const QString time = tr("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
    m_playLabel->setVisible(m_player->isOn());
    m_playLabel->setText(phase.isEmpty() ? time : tr("%1, %2").arg(time, phase));
    const QString page = pageOfText();
    if (page != m_pageLabel->text()) {
        m_pageLabel->setText(page);
        emit statusChanged();
    }
}

QString WallPanel::pageOfText() const
{
    if (!m_item) {
        return {};
    }
    const FramePlay *const play = currentPlay();
    const int count = play != nullptr ? play->pageCount() : m_item->GetPageCount();
    const int page =
        play != nullptr ? play->moment().page + 1 : std::min(m_item->GetCurrentPage(), count);
    return tr("Page %1 of %2").arg(page).arg(count);
}

} // namespace workbench
