#pragma once

#include "processidentity.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace workbench {

/** What a journal says of itself. */
struct JournalHead
{
    QString original;        ///< The programme's file; empty when it was never saved.
    qint64 originalSize = 0; ///< Of that file when the programme was read from or written to it.
    QByteArray originalHash; ///< SHA-256 of its bytes then; empty when there was no such file.
    QDateTime saved;
    ProcessIdentity process; ///< Who writes the journal.
};

/** A journal as it was read. */
struct Journal
{
    JournalHead head;
    QByteArray programme; ///< As writeProgramme() gave it.
    QString error;        ///< Empty: head and programme are as they were written.
};

/** SHA-256 of a file's bytes and their number; an empty hash when it cannot be read. */
struct FileStamp
{
    QByteArray hash;
    qint64 size = 0;
};
[[nodiscard]] FileStamp stampOf(const QString &fileName);

/** The bytes of a journal. */
[[nodiscard]] QByteArray writeJournal(const JournalHead &head, const QByteArray &programme);
/** The inverse; any bytes may be given, and any change of them is noticed. */
[[nodiscard]] Journal readJournal(const QByteArray &bytes);
[[nodiscard]] Journal loadJournal(const QString &fileName);

/** The folder for journals that cannot stand beside their file. It need not exist. */
[[nodiscard]] QString recoveryFolder();
/** ".NAME.autosave", from the second try on ".NAME.2.autosave"; without a file's name, "untitled".
 */
[[nodiscard]] QString journalName(const QString &original, int attempt);
/** What journals in a folder are called, for QDir. */
[[nodiscard]] QString journalPattern();

} // namespace workbench
