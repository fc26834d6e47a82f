#include "sourcethread.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMutex>
#include <QThread>
#include <QVector>

namespace sources {

namespace {

constexpr int LongestWait = 5000;

/** The threads that run; used on the application's thread only. */
QVector<QThread *> &runningThreads()
{
    static auto *const threads = new QVector<QThread *>;
    return *threads;
}

// Objects of threads that still run must not meet the end of the application object. What is
// stuck in a driver by then ends with the process.
void waitForThreads()
{
    QElapsedTimer waited;
    waited.start();
    const QVector<QThread *> threads = runningThreads();
    for (QThread *thread : threads) {
        thread->quit();
        thread->wait(static_cast<unsigned long>(qMax<qint64>(1, LongestWait - waited.elapsed())));
    }
}

} // namespace

QThread *startSourceThread(const char *name)
{
    static const bool isArranged = [] {
        qAddPostRoutine(waitForThreads);
        return true;
    }();
    Q_UNUSED(isArranged)
    auto *thread = new QThread;
    thread->setObjectName(QString::fromLatin1(name));
    runningThreads().append(thread);
    QObject::connect(thread, &QThread::finished, thread, [thread] {
        runningThreads().removeOne(thread);
        thread->deleteLater();
    });
    thread->start(QThread::LowPriority);
    return thread;
}

} // namespace sources
