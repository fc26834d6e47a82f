#pragma once

#include "frameplay.h"
#include "lframenode.h"
#include "livenode.h"
#include "lscreennode.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVector>

class QWidget;

namespace workbench {

class ItemPages;

/**
 * Plays a screen: all of its frames at once, each its items one after another.
 *
 * Pictures follow the time that has passed, so a slow machine shows fewer of them but none too
 * late. They are made at the refresh rate of the monitor, 15 to 60 a second, and only while
 * something moves; no timer runs while it is paused or stopped, or while the widget that it plays
 * for is hidden or its window minimised; the time stands still then. The programme is only read:
 * nothing is written to a node. What is changed in it meanwhile is followed. GUI thread.
 */
class WallPlayer : public QObject
{
    Q_OBJECT

public:
    enum State { Stopped, Paused, Playing };

    WallPlayer(ItemPages *pages, QWidget *shownIn);
    ~WallPlayer() override;

    [[nodiscard]] State state() const { return m_state; }
    /** Whether its pictures are to be shown in place of the edited ones. */
    [[nodiscard]] bool isOn() const { return m_state != Stopped; }
    /** Whether it is at work now. */
    [[nodiscard]] bool isRunning() const { return m_clock.isValid(); }
    /** Milliseconds that it has played. */
    [[nodiscard]] qint64 elapsed() const;

    /**
     * The screen to play; call it again when frames or items came, went or moved. Another one
     * begins anew, null stops.
     */
    void setScreen(LScreenNode *screen);

    /** What a frame plays; null for one that has no items or when nothing is played. */
    [[nodiscard]] const FramePlay *playOf(const LNode *frame) const;

public slots:
    /** Plays, or pauses what plays; does nothing without a screen. */
    void toggle();
    void stop();

signals:
    void stateChanged();
    /** A frame shows another picture of the same item. */
    void pictureChanged(const LNode *frame);
    /** A frame plays another item. */
    void itemChanged();
    /** Time has passed: page, phase or second may be others. */
    void advanced();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Frame
    {
        LiveNode<LFrameNode> node;
        FramePlay play;
    };

    void setState(State state);
    void rebuildFrames();
    void watch(LNode *node);
    void unwatchAll();
    /** Lets the clock run or not, by what is wanted and seen. */
    void updateClock();
    /** Shows what has changed soon, even when the time stands still. */
    void followSoon();
    void tick();
    void advanceFrames(qint64 now);
    void schedule(qint64 now);
    /** Pictures a second. */
    [[nodiscard]] double pictureRate() const;

    ItemPages *m_pages;
    QWidget *m_shownIn;
    QPointer<QWidget> m_window; ///< The one that is watched.
    QPointer<LScreenNode> m_screen;
    QVector<Frame> m_frames;
    QVector<QPointer<LNode>> m_watched;
    QTimer m_timer;
    QElapsedTimer m_clock; ///< Not valid while the time stands still.
    qint64 m_before = 0;   ///< Milliseconds that passed before the clock was started.
    State m_state = Stopped;
    bool m_isStale = false; ///< Effects, times or pages may have changed.
};

} // namespace workbench
