#include "journalwriter.h"

#include "replacefile.h"

#include <QFile>

#include <utility>

namespace workbench {

JournalWriter::JournalWriter(QObject *parent)
    : QObject(parent)
    , m_thread([this] { run(); })
{}

JournalWriter::~JournalWriter()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void JournalWriter::write(const QString &fileName, const JournalHead &head,
                          const QByteArray &programme)
{
    put({fileName, head, programme});
}

void JournalWriter::remove(const QString &fileName)
{
    put({fileName, {}, std::nullopt});
}

void JournalWriter::put(Job job)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_jobs.empty() && m_jobs.back().fileName == job.fileName) {
            m_jobs.back() = std::move(job);
        } else {
            m_jobs.push_back(std::move(job));
        }
    }
    m_changed.notify_all();
}

void JournalWriter::wait()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this] { return m_jobs.empty() && !m_isBusy; });
}

void JournalWriter::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return !m_jobs.empty() || m_isEnding; });
        if (m_jobs.empty()) {
            return;
        }
        const Job job = std::move(m_jobs.front());
        m_jobs.pop_front();
        m_isBusy = true;
        lock.unlock();
        perform(job);
        lock.lock();
        m_isBusy = false;
        m_changed.notify_all();
    }
}

void JournalWriter::perform(const Job &job)
{
    if (!job.programme) {
        QFile::remove(job.fileName);
        return;
    }
    const QString reason = replaceFile(job.fileName, writeJournal(job.head, *job.programme));
    if (!reason.isEmpty()) {
        QMetaObject::invokeMethod(
            this, [this, reason] { emit failed(reason); }, Qt::QueuedConnection);
    }
}

} // namespace workbench
