#pragma once

#include "datacache.h"
#include "recording.h"
#include "sourcehealth.h"
#include "sourcereader.h"

#include <QElapsedTimer>
#include <QMutex>
#include <QTimer>

#include <memory>
#include <optional>

namespace sources {

/** Holds the newest update for the other thread, however many there were; any thread may ask. */
class Mailbox
{
public:
    /** True when the box was empty, so that the other side has to be told. */
    bool put(const SourceUpdate &update);
    /** The newest update, none when the box is empty; it is empty then. */
    [[nodiscard]] std::optional<SourceUpdate> take();

private:
    QMutex m_mutex;
    std::optional<SourceUpdate> m_update;
};

/**
 * Runs one source in its thread: when to read, what a failure does, what is handed over. The last
 * good data stays when an attempt fails, marked stale.
 */
class SourceWorker : public QObject
{
    Q_OBJECT

public:
    SourceWorker(std::unique_ptr<SourceReader> reader, const SourceSettings &settings,
                 const SourceContext &context, std::shared_ptr<Mailbox> mailbox);

    ~SourceWorker() override;

    /** In the thread of the source, as everything below. */
    void start();
    /** Reads soon, whenever the next attempt was planned. */
    void refresh();
    /** Records what comes from now on; an empty name ends it. */
    void recordTo(const QString &fileName);
    /** Stops for good and ends the thread. */
    void shutDown();

signals:
    /** The mailbox was empty and is no more. */
    void posted();

private:
    void read();
    void finish(const Reading &reading);
    void accept(const Reading &reading);
    void refuse(const Reading &reading);
    void plan(int delay);
    [[nodiscard]] int retryDelay(const Reading &reading) const;
    void post();

    std::unique_ptr<SourceReader> m_reader;
    const SourceContext m_context;
    const std::shared_ptr<Mailbox> m_mailbox;
    SourceUpdate m_update;
    DataCache m_cache;
    std::unique_ptr<Recording> m_recording;
    QTimer m_timer;
    QElapsedTimer m_latency;
    bool m_isReading = false;
    bool m_isDue = false; ///< Something changed while it was read.
};

} // namespace sources
