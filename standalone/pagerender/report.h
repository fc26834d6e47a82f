#pragma once

#include "problem.h"

#include <QJsonArray>
#include <QSize>
#include <QString>

#include <cstdio>

/** One page file that was written. */
struct WrittenPage
{
    QString place; ///< screen/frame/item
    int page = 1;
    QString file;
    QSize size;
};

/**
 * What pagerender tells its user: files on standard output, problems and progress on standard
 * error; or one JSON object on standard output at the end.
 */
class Report
{
public:
    /** @p file names the programme in every message; @p messages is the standard error. */
    Report(const QString &file, bool asJson, bool isQuiet, FILE *messages);

    /** A line file: place: reason; remedy. */
    void problem(const player::Problem &problem);
    void problems(const player::Problems &problems);
    void page(const WrittenPage &page);
    /** Shown on a terminal only, and replaced by what follows. */
    void progress(const QString &text);

    [[nodiscard]] int errorCount() const { return m_errors; }
    [[nodiscard]] int problemCount() const { return m_count; }

    /** Prints what is due at the end. @p summary is for people, left out when empty. */
    void finish(const QString &summary);

private:
    void clearProgress();

    QString m_file;
    bool m_asJson;
    bool m_isQuiet;
    FILE *m_messages;
    bool m_onTerminal;
    bool m_progressShown = false;
    int m_count = 0;
    int m_errors = 0;
    QJsonArray m_pages; ///< Only for a report in JSON, as m_problems are.
    QJsonArray m_problems;
};
