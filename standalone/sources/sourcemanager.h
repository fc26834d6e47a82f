#pragma once

#include "datasource.h"
#include "sourcelist.h"

#include <QSet>
#include <QTimer>

#include <vector>

namespace sources {

/**
 * The data sources of a programme. Keeps what they deliver as one snapshot, tells of changes at
 * most once a turn of the event loop, and feeds DataSourceConfigManager. On the GUI thread only.
 */
class SourceManager : public QObject
{
    Q_OBJECT

public:
    explicit SourceManager(QObject *parent = nullptr);
    /** Stops all sources and takes back what was offered. */
    ~SourceManager() override;

    /**
     * Makes these the sources, started when they are enabled. Those whose settings and context are
     * the same as before go on running.
     */
    void setSources(const QVector<SourceSettings> &sources, const SourceContext &context);
    /** Their settings, in their order. */
    [[nodiscard]] QVector<SourceSettings> settings() const;

    /** What every enabled source delivered; the same value until changed(). */
    [[nodiscard]] const DataSnapshot &snapshot() const { return m_snapshot; }
    [[nodiscard]] SourceHealth health(const QString &name) const;
    /** The source of that name, null when there is none; valid until setSources(). */
    [[nodiscard]] DataSource *find(const QString &name) const;

    void refresh(const QString &name);
    void refreshAll();

signals:
    /** The data of these sources is other, or became or ceased to be stale. */
    void changed(const QStringList &names);
    /** How these sources are doing is other. */
    void healthChanged(const QStringList &names);

private:
    void listen(DataSource *source);
    void note(QSet<QString> *names, const QString &name);
    void publish();
    void offer();

    std::vector<std::unique_ptr<DataSource>> m_sources;
    SourceContext m_context;
    DataSnapshot m_snapshot;
    QSet<QString> m_changed;
    QSet<QString> m_healthChanged;
    QTimer m_publish;
};

} // namespace sources
