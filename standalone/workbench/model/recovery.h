#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVector>

namespace workbench {

/** A journal that a process left behind. */
struct Recovery
{
    enum State {
        Ok,              ///< The programme's file is as it was when the journal was begun.
        OriginalChanged, ///< It was changed or removed since: let the user choose, delete neither.
        Broken           ///< Damaged; it was renamed to end in ".bad" and can only be reported.
    };

    State state = Ok;
    QString journal;  ///< The journal's file, with ".bad" when it was renamed.
    QString original; ///< The programme's file; empty when it was never saved or is not known.
    QDateTime saved;  ///< When the journal was written; invalid when broken.
    QString reason;   ///< Why it is broken, fit for a user.
};

/**
 * The journals of processes that are gone, newest first: in the recovery folder, in @p folders and
 * in the folders of @p files. Journals of running processes are left alone.
 */
[[nodiscard]] QVector<Recovery> findJournals(const QStringList &folders,
                                             const QStringList &files = {});

/** The programme in a journal, for ProgrammeDocument::restore(); empty when it is broken now. */
[[nodiscard]] QByteArray recoveredProgramme(const Recovery &recovery);
/** Removes a journal that the user has seen and does not want; broken ones are never removed. */
bool discardRecovery(const Recovery &recovery);

} // namespace workbench
