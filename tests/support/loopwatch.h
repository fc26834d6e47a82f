#pragma once

#include <QElapsedTimer>
#include <QTimer>

/** Longest time that the event loop of this thread did not turn, in milliseconds. */
class LoopWatch
{
public:
    LoopWatch()
    {
        m_since.start();
        QObject::connect(&m_timer, &QTimer::timeout,
                         [this] { m_longest = qMax(m_longest, m_since.restart()); });
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.start(1);
    }
    [[nodiscard]] qint64 longest() const { return m_longest; }
    /** Forgets what was before. */
    void restart()
    {
        m_longest = 0;
        m_since.restart();
    }

private:
    QTimer m_timer;
    QElapsedTimer m_since;
    qint64 m_longest = 0;
};
