#pragma once

#include "reply.h"

#include <QObject>

namespace sources {

/** Where and how the sources of one programme run. */
struct SourceContext
{
    QString folder;      ///< Of the programme; relative files start there.
    QString cacheFolder; ///< For the last good data; empty: none is kept.
    QString programme;   ///< What tells this programme's data from others' in the cache.
    int backOff = 30000; ///< Milliseconds after a first failure of HTTP and SQL; doubled twice.
    int settling = 200;  ///< Milliseconds that a file must be unchanged before it is read.
    bool replayAtOnce = false; ///< Recordings are played without waiting.
};

/** How one attempt to read ended. */
struct Reading
{
    enum Outcome { Arrived, Unchanged, Failed };
    Outcome outcome = Failed;
    DataValue value;     ///< A record, when it arrived.
    qint64 bytes = 0;    ///< That were read.
    QString error;       ///< Fit for a user, when it failed.
    int retryAfter = -1; ///< Milliseconds that the other side asks for; -1: it does not.

    [[nodiscard]] static Reading failed(const QString &error);
    [[nodiscard]] static Reading of(const Reply &reply, qint64 bytes);
};

/**
 * Reads one kind of source. Everything, the constructor apart, is called in the thread of the
 * source, where it may take its time; a stop flag that is set should end it soon.
 */
class SourceReader : public QObject
{
    Q_OBJECT

public:
    SourceReader(SourceSettings settings, SourceContext context);

    /** Called once before the first read(). */
    virtual void open() {}
    /** Starts an attempt; it ends with one finished(), at once or later. */
    virtual void read() = 0;
    /** Milliseconds from the end of an attempt that went well to the next one; -1: none. */
    [[nodiscard]] virtual int nextInterval() const;
    /** Whether the last data is worth keeping for the next start. */
    [[nodiscard]] virtual bool isKept() const { return true; }
    /** Whether attempts become rarer while they fail. */
    [[nodiscard]] virtual bool backsOff() const { return true; }

    /** May be set from any thread. */
    [[nodiscard]] StopFlag &stopFlag() { return m_stop; }

signals:
    void finished(const sources::Reading &reading);
    /** What is read changed: read soon. */
    void due();

protected:
    [[nodiscard]] const SourceSettings &settings() const { return m_settings; }
    [[nodiscard]] const SourceContext &context() const { return m_context; }
    [[nodiscard]] const StopFlag &stop() const { return m_stop; }
    /** A member in seconds as milliseconds, @p fallback when it is not set. */
    [[nodiscard]] static int milliseconds(double seconds, int fallback);

private:
    const SourceSettings m_settings;
    const SourceContext m_context;
    StopFlag m_stop{false};
};

} // namespace sources
