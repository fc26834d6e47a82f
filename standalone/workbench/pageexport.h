#pragma once

#include "datasnapshot.h"
#include "ltexteffectnode.h"
#include "pagefile.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QVector>

#include <memory>

class QProgressDialog;
class QWidget;

namespace player {
class ItemRenderer;
struct ProgrammeItem;
} // namespace player

namespace workbench {

/**
 * Writes all pages of all text items of a programme as PNG files into a folder, a page at a time,
 * so that the window stays alive; a dialog shows how far it is and can cancel.
 */
class PageExport : public QObject
{
    Q_OBJECT

public:
    /** What became of an export. */
    struct Result
    {
        int pages = 0; ///< Files written.
        bool isCancelled = false;
        QStringList problems; ///< place: reason, for items and pages that were not written.
    };

    /** @p data is what the items show. */
    PageExport(const LNode *programme, sources::DataSnapshot data, const QString &folder,
               QWidget *window);
    ~PageExport() override;

    /** Begins; finished() comes later, in any case. */
    void start();

signals:
    void finished(const workbench::PageExport::Result &result);

private:
    struct Item
    {
        QPointer<LTextEffectNode> node;
        QString place;
    };

    void step();
    bool nextItem();
    void countPages();
    void writePage();
    void end();

    QVector<Item> m_items;
    sources::DataSnapshot m_data;
    QString m_folder;
    QPointer<QProgressDialog> m_dialog;
    QTimer m_timer;
    player::PageNames m_names;
    std::unique_ptr<player::ItemRenderer> m_renderer;
    QString m_stem;
    int m_nextItem = 0;
    int m_pageCount = 0; ///< Of the item, as far as they were counted.
    bool m_isCounted = false;
    int m_nextPage = 0;
    Result m_result;
};

} // namespace workbench
