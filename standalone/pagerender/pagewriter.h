#pragma once

#include "pagefile.h"
#include "problem.h"

#include <QHash>
#include <QVector>

struct CommandLine;
class LControllerNode;
class LTextEffectNode;
class Report;

namespace player {
class ItemRenderer;
struct ProgrammeItem;
} // namespace player

/** The items to work on; tells of names that no item has. */
[[nodiscard]] QVector<player::ProgrammeItem> wantedItems(LControllerNode *programme,
                                                         const CommandLine &line, Report *report);

/**
 * Writes the pages of items into the output folder, an item's always under the same names. A page
 * file is whole at any moment.
 */
class PageWriter
{
public:
    /** Both outlive it. */
    PageWriter(const CommandLine &line, Report *report);

    /** False, and a problem is reported, when there is no folder and none can be made. */
    [[nodiscard]] bool prepareFolder();
    /**
     * Reports the problems of an item and writes its pages; those that are as they were written
     * last are not written again, and files of pages that are no more are removed.
     */
    void write(player::ItemRenderer *renderer, const QString &itemName, const QString &progress);
    /** Removes what was written of items that are not among these. */
    void keepOnly(const QVector<player::ProgrammeItem> &items);

private:
    /** What was written of an item. */
    struct Written
    {
        QString stem;
        QVector<QByteArray> pages; ///< A digest each.
        player::Problems problems;
    };

    [[nodiscard]] bool writePage(player::ItemRenderer *renderer, int index, Written *written);
    void removeFrom(int index, Written *written);
    [[nodiscard]] QString fileOf(const Written &written, int index) const;

    const CommandLine &m_line;
    Report *m_report;
    player::PageNames m_names;
    QHash<QString, Written> m_written; ///< By the item's place.
};
