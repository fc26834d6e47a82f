#pragma once

#include "journal.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace workbench {

class JournalWriter;
class ProgrammeDocument;

/**
 * Keeps a journal of a programme with unsaved changes, so that a crash costs seconds: a file
 * ".NAME.autosave" beside the programme's file where that folder can be written, else one in the
 * user's recovery folder. It is written at most five seconds after a change and never when nothing
 * changed; the writing is done by a thread of its own.
 *
 * The journal goes when the programme is saved, is undone to what the file holds, or is replaced by
 * another one: by then the user was asked. When the document is modified and this object is
 * destroyed without discard(), the journal stays and is offered on the next start.
 */
class Autosave : public QObject
{
    Q_OBJECT

public:
    explicit Autosave(ProgrammeDocument *document, QObject *parent = nullptr);
    ~Autosave() override;

    /** The journal's file; empty while there is none. */
    [[nodiscard]] QString journalFile() const { return m_journal; }
    /** The user does not want the changes: removes the journal, waits until it is gone. */
    void discard();
    /**
     * Makes a journal that was found, and whose programme the document was just given by
     * restore(), the document's own. False when another process took it meanwhile.
     */
    bool adopt(const QString &journal);
    /** Writes now what is due and waits for it. */
    void flush();

signals:
    /** The journal could not be written, for this reason; tried again with the next change. */
    void failed(const QString &reason);

private:
    void onChanged();
    void rememberOriginal();
    void write();
    void drop();
    /** Puts a first journal where there is none of another process; empty when that failed. */
    QString claim(const QByteArray &programme);

    const QPointer<ProgrammeDocument> m_document;
    QTimer m_timer;
    JournalHead m_head;
    QString m_journal;
    QByteArray m_written; ///< The programme in the journal.
    std::unique_ptr<JournalWriter> m_writer;
};

} // namespace workbench
