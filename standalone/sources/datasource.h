#pragma once

#include "sourcehealth.h"
#include "sourcereader.h"

#include <QObject>

class QThread;

namespace sources {

class Mailbox;
class SourceWorker;

/**
 * One data source as the GUI thread sees it. All work is done in a thread of the source; nothing
 * here waits for it. What is delivered never changes any more.
 */
class DataSource : public QObject
{
    Q_OBJECT

public:
    DataSource(SourceSettings settings, SourceContext context, QObject *parent = nullptr);
    /** Stops; the thread ends by itself. */
    ~DataSource() override;

    [[nodiscard]] const SourceSettings &settings() const { return m_settings; }

    /** Starts reading. A source without a kind stays Off and says so in its health. */
    void start();
    /** Stops reading; the last data stays. */
    void stop();
    /** Reads at once; the next attempts are planned from there. */
    void refresh();
    /** Writes what comes from now on into a file, a line each; an empty name ends it. */
    void recordTo(const QString &fileName);

    [[nodiscard]] const SourceData &latest() const { return m_update.data; }
    /** What the data offers; values are shortened. */
    [[nodiscard]] const QVector<DataSourceKey> &keys() const { return m_update.keys; }
    [[nodiscard]] const SourceHealth &health() const { return m_update.health; }

    /** Lets go of data in the source's thread: to free a large value takes its time. */
    void retire(SourceData data);

signals:
    /** latest() or keys() are others. */
    void changed();
    /** health() is another; also sent with each changed(). */
    void healthChanged();

private:
    void takePost();

    const SourceSettings m_settings;
    const SourceContext m_context;
    SourceUpdate m_update;
    std::shared_ptr<Mailbox> m_mailbox;
    SourceWorker *m_worker = nullptr; ///< Belongs to its thread; null when not running.
    SourceReader *m_reader = nullptr; ///< The worker's.
};

} // namespace sources
