#pragma once

#include "programmefile.h"
#include "sourcesettings.h"

#include <QJsonArray>

class LControllerNode;

namespace sources {

/** The data sources of a programme, in their order. */
struct SourceList
{
    QVector<SourceSettings> sources;
    /** The file that they stand in, relative to the programme's; empty: in the programme itself. */
    QString reference;
    /** Entries that were read with a fault: stored again as they are, behind the others. */
    QJsonArray faulty;
    /** There is something in their place that could not be read at all, so nothing is stored. */
    bool isBroken = false;
};

/** What was read: every source without a fault, and the faults of the others. */
struct ReadSources
{
    SourceList list;
    QVector<ProgrammeError> faults;
};

/**
 * Reads the member "sources" of the programme that stands in @p folder: a list, or the name of a
 * file with such a list. One bad source does not keep the others away. File names in a list of its
 * own are relative to that list; those of the sources read are always relative to @p folder.
 * @p bytes of the programme's file add line and column to the faults.
 */
[[nodiscard]] ReadSources readSources(const LControllerNode &programme, const QString &folder,
                                      const QByteArray &bytes = QByteArray());

/**
 * Puts the sources into the programme, which the next saving writes, or into the file that they
 * stand in. An error, above all a secret in clear, leaves all as it was.
 */
[[nodiscard]] ProgrammeError storeSources(LControllerNode *programme, const QString &folder,
                                          const SourceList &list);

} // namespace sources
