#pragma once

#include "pagewriter.h"
#include "programmedata.h"
#include "programmeitems.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QSet>
#include <QTimer>
#include <QVector>

#include <map>
#include <memory>

/**
 * Keeps the page files of a programme up to date: writes those of an item anew when data that it
 * shows changes, and all of them when the programme file does; pages that are no more are removed.
 * A programme file that cannot be read is reported, and the pages of the one before stay.
 */
class ProgrammeWatch : public QObject
{
    Q_OBJECT

public:
    /** Both outlive it. */
    ProgrammeWatch(const CommandLine &line, Report *report);
    ~ProgrammeWatch() override;

    /** Writes all pages for the first time; false when there is nothing to watch. */
    [[nodiscard]] bool start();

private:
    [[nodiscard]] bool load();
    void reload();
    void watchFile();
    void note(const QStringList &names);
    void writeChanged();
    void write(int item);

    const CommandLine &m_line;
    Report *m_report;
    PageWriter m_writer;
    ProgrammeData m_data;
    std::unique_ptr<LControllerNode> m_programme;
    QVector<player::ProgrammeItem> m_items;
    std::map<int, QSet<QString>> m_shown; ///< The sources that each item shows, by its index.
    QSet<QString> m_changed;
    QTimer m_write;
    QTimer m_reload;
    QFileSystemWatcher m_file;
    QDateTime m_modified; ///< When the programme file was written that is shown.
};

/** Runs until the process is ended; false when it could not begin. */
[[nodiscard]] bool watchProgramme(const CommandLine &line, Report *report);
