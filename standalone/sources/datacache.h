#pragma once

#include "datasnapshot.h"
#include "sourcereader.h"

#include <QElapsedTimer>

namespace sources {

/**
 * The last good data of one source on disk, so that screens have something to show while a source
 * does not answer. One file a source and programme; whenever the process stops, the file is whole.
 * Used in the source's thread.
 */
class DataCache
{
public:
    /** Without a folder in @p context nothing is kept. */
    DataCache(const SourceSettings &settings, const SourceContext &context);

    /** What was kept, marked stale; missing when there is nothing that can be used. */
    [[nodiscard]] SourceData load() const;
    /** Keeps @p data, of @p bytes, at once or, when something was kept just now, by flush(). */
    void store(const SourceData &data, qint64 bytes);
    /** Writes what is waiting. */
    void flush();

    [[nodiscard]] QString fileName() const { return m_fileName; }

private:
    const QString m_fileName;    ///< Empty: nothing is kept.
    const QByteArray m_settings; ///< What tells data of other settings from these.
    SourceData m_waiting;
    QElapsedTimer m_written;
};

/** The folder for SourceContext::cacheFolder of the program that runs. */
[[nodiscard]] QString defaultCacheFolder();

} // namespace sources
