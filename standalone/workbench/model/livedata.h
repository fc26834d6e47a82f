#pragma once

#include "sourcelist.h"
#include "sourcemanager.h"

#include <QObject>

namespace workbench {

class ProgrammeDocument;

/**
 * The data sources of the document: read from it, run while it is open, and changed as undo steps.
 * GUI thread.
 */
class LiveData : public QObject
{
    Q_OBJECT

public:
    explicit LiveData(ProgrammeDocument *document, QObject *parent = nullptr);
    ~LiveData() override;

    [[nodiscard]] sources::SourceManager *manager() const { return m_manager; }
    [[nodiscard]] const sources::DataSnapshot &snapshot() const { return m_manager->snapshot(); }

    /** How the sources are set up; with those that are disabled, without faulty ones. */
    [[nodiscard]] const QVector<sources::SourceSettings> &sources() const { return m_list.sources; }
    /** What is wrong with the sources as they stand in the file, one line each. */
    [[nodiscard]] QStringList faults() const;
    /** Why sources cannot be changed at all; empty when they can. */
    [[nodiscard]] QString obstacle() const;

    /**
     * Makes these the sources of the programme. Sources that stand in a file of their own are
     * written there at once, without a step. On an error nothing changes.
     */
    [[nodiscard]] ProgrammeError setSources(const QVector<sources::SourceSettings> &sources,
                                            const QString &stepName);

    /** Where and how sources of this document run; for trying one out. */
    [[nodiscard]] sources::SourceContext context() const;
    /** A name for a new source that no other has, made of @p base. */
    [[nodiscard]] QString freeName(const QString &base) const;

signals:
    /** sources() or faults() are others. */
    void sourcesChanged();

private:
    void read();

    ProgrammeDocument *const m_document;
    sources::SourceManager *m_manager;
    sources::SourceList m_list;
    QVector<ProgrammeError> m_faults;
};

} // namespace workbench
