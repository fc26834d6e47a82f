#pragma once

#include "sourcemanager.h"

#include <QHash>
#include <QObject>

struct CommandLine;
class LControllerNode;
class Report;

/**
 * The data of a programme: what its sources deliver while this lives, and in their place what the
 * command line names.
 */
class ProgrammeData : public QObject
{
    Q_OBJECT

public:
    ProgrammeData(const CommandLine &line, Report *report);

    /**
     * Starts the sources of @p programme in place of those before. False, with problems reported,
     * when what the command line names cannot be read; a source with a fault is a warning.
     */
    [[nodiscard]] bool start(const LControllerNode &programme);
    /**
     * Waits until every source has answered or failed, not longer than a slow one may take, and
     * tells of those that failed.
     */
    void waitUntilRead();
    [[nodiscard]] sources::DataSnapshot snapshot() const;
    /** The sources that run. */
    [[nodiscard]] QStringList names() const;

signals:
    /** The data of these sources is other. */
    void changed(const QStringList &names);

private:
    [[nodiscard]] bool record();
    [[nodiscard]] bool isRead() const;
    void tellFailures(const QStringList &names);

    const CommandLine &m_line;
    Report *m_report;
    sources::SourceManager m_manager;
    sources::DataSnapshot m_given;  ///< By the command line.
    QHash<QString, QString> m_told; ///< The failure of each source that was told last.
};
