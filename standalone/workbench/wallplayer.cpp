#include "wallplayer.h"

#include "itempages.h"
#include "lcontrollernode.h"
#include "ltexteffectnode.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <cmath>

namespace workbench {

namespace {

constexpr double SlowestRate = 15;
constexpr double FastestRate = 60;
constexpr qint64 Second = 1000;

QVector<LTextEffectNode *> itemsOf(const LNode *frame)
{
    QVector<LTextEffectNode *> items;
    const QList<LNode *> children = frame->ChildNodes();
    for (LNode *child : children) {
        if (auto *item = qobject_cast<LTextEffectNode *>(child)) {
            items.append(item);
        }
    }
    return items;
}

} // namespace

WallPlayer::WallPlayer(ItemPages *pages, QWidget *shownIn)
    : QObject(shownIn)
    , m_pages(pages)
    , m_shownIn(shownIn)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &WallPlayer::tick);
    connect(m_pages, &ItemPages::pagesChanged, this, [this](LTextEffectNode *node) {
        for (Frame &frame : m_frames) {
            frame.play.dropPages(node);
        }
        followSoon();
    });
    m_shownIn->installEventFilter(this);
}

WallPlayer::~WallPlayer() = default;

qint64 WallPlayer::elapsed() const
{
    return m_before + (m_clock.isValid() ? m_clock.elapsed() : 0);
}

void WallPlayer::setScreen(LScreenNode *screen)
{
    if (screen == nullptr) {
        stop();
    }
    if (screen != m_screen) {
        m_frames.clear();
        m_before = 0;
        if (isRunning()) {
            m_clock.restart();
        }
    }
    m_screen = screen;
    if (isOn()) {
        rebuildFrames();
    }
}

void WallPlayer::toggle()
{
    if (!m_screen) {
        return;
    }
    const bool begins = !isOn();
    setState(m_state == Playing ? Paused : Playing);
    if (begins) {
        rebuildFrames();
        emit itemChanged();
    }
}

void WallPlayer::stop()
{
    if (!isOn()) {
        return;
    }
    setState(Stopped);
    m_frames.clear();
    unwatchAll();
    m_timer.stop();
    m_before = 0;
    emit itemChanged();
}

void WallPlayer::setState(State state)
{
    m_state = state;
    updateClock();
    emit stateChanged();
}

void WallPlayer::rebuildFrames()
{
    unwatchAll();
    const qint64 now = elapsed();
    QVector<Frame> frames;
    watch(m_screen);
    watch(m_screen->GetControllerNode());
    const QList<LNode *> children = m_screen->ChildNodes();
    for (LNode *child : children) {
        auto *node = qobject_cast<LFrameNode *>(child);
        if (node == nullptr) {
            continue;
        }
        watch(node);
        const QVector<LTextEffectNode *> items = itemsOf(node);
        for (LTextEffectNode *item : items) {
            watch(item);
        }
        Frame frame{node, FramePlay(m_pages, now, quint32(frames.size()) * 0x10001U)};
        for (const Frame &known : qAsConst(m_frames)) {
            if (known.node == node) {
                frame.play = known.play;
            }
        }
        frame.play.setItems(items, now);
        frame.play.advance(now);
        frames.append(frame);
    }
    m_frames = frames;
    schedule(now);
}

void WallPlayer::watch(LNode *node)
{
    if (node != nullptr) {
        m_watched.append(node);
        connect(node, &LData::AttributeChanged, this, &WallPlayer::followSoon);
    }
}

void WallPlayer::unwatchAll()
{
    for (const QPointer<LNode> &node : qAsConst(m_watched)) {
        if (node) {
            node->disconnect(this);
        }
    }
    m_watched.clear();
}

const FramePlay *WallPlayer::playOf(const LNode *frame) const
{
    for (const Frame &each : m_frames) {
        if (frame != nullptr && each.node == frame && each.play.item() != nullptr) {
            return &each.play;
        }
    }
    return nullptr;
}

void WallPlayer::updateClock()
{
    const bool isSeen = m_shownIn->isVisible() && !m_shownIn->window()->isMinimized();
    const bool runs = m_state == Playing && isSeen;
    if (runs == m_clock.isValid()) {
        return;
    }
    if (runs) {
        m_clock.start();
        m_timer.start(0);
    } else {
        m_before += m_clock.elapsed();
        m_clock.invalidate();
        m_timer.stop();
    }
}

void WallPlayer::followSoon()
{
    if (isOn()) {
        m_isStale = true;
        m_timer.start(0);
    }
}

void WallPlayer::tick()
{
    const qint64 now = elapsed();
    if (m_isStale) {
        m_isStale = false;
        for (Frame &frame : m_frames) {
            frame.play.refresh(now);
        }
    }
    advanceFrames(now);
    for (Frame &frame : m_frames) {
        frame.play.prepareNext();
    }
    schedule(elapsed());
    emit advanced();
}

void WallPlayer::advanceFrames(qint64 now)
{
    bool hasOtherItem = false;
    QVector<const LNode *> changed;
    for (Frame &frame : m_frames) {
        const LTextEffectNode *const before = frame.play.item();
        if (frame.play.advance(now)) {
            changed.append(frame.node);
        }
        hasOtherItem = hasOtherItem || frame.play.item() != before;
    }
    if (hasOtherItem) {
        emit itemChanged();
        return;
    }
    for (const LNode *node : qAsConst(changed)) {
        emit pictureChanged(node);
    }
}

void WallPlayer::schedule(qint64 now)
{
    if (!isRunning()) {
        return;
    }
    // The seconds are told even while nothing moves.
    qint64 wait = Second - now % Second;
    // In step with the pictures before, so that the rate does not sink by what they cost.
    const double frameTime = Second / pictureRate();
    const qint64 nextPicture = qint64(std::ceil(std::floor(now / frameTime + 1) * frameTime));
    for (const Frame &frame : qAsConst(m_frames)) {
        const qint64 rest = frame.play.rest(now);
        wait = qMin(wait, rest > 0 ? rest : nextPicture - now);
    }
    m_timer.start(int(qMax<qint64>(1, wait)));
}

double WallPlayer::pictureRate() const
{
    const QWindow *const window = m_shownIn->window()->windowHandle();
    const QScreen *const screen = window != nullptr ? window->screen() : nullptr;
    const double rate = screen != nullptr ? screen->refreshRate() : FastestRate;
    return qBound(SlowestRate, rate, FastestRate);
}

bool WallPlayer::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
        // A panel that floats has another window than one that is docked.
        if (m_window != m_shownIn->window()) {
            if (m_window) {
                m_window->removeEventFilter(this);
            }
            m_window = m_shownIn->window();
            m_window->installEventFilter(this);
        }
        updateClock();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace workbench
