#pragma once

#include "journal.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>

namespace workbench {

/**
 * Writes and removes journals in a thread of its own, in order; a write that was overtaken by
 * another one is left out. Its destructor finishes what is due.
 */
class JournalWriter : public QObject
{
    Q_OBJECT

public:
    explicit JournalWriter(QObject *parent = nullptr);
    ~JournalWriter() override;

    /** Puts a journal under @p fileName, which is this process's own. */
    void write(const QString &fileName, const JournalHead &head, const QByteArray &programme);
    /** Removes @p fileName, and leaves out a write of it that is still due. */
    void remove(const QString &fileName);
    /** Waits until nothing is due. */
    void wait();

signals:
    /** A write failed; sent in the thread of this object. */
    void failed(const QString &reason);

private:
    struct Job
    {
        QString fileName;
        JournalHead head;
        std::optional<QByteArray> programme; ///< None: remove.
    };

    void put(Job job);
    void run();
    void perform(const Job &job);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Job> m_jobs;
    bool m_isBusy = false;
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace workbench
