#pragma once

#include "problem.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QPair>
#include <QPointer>
#include <QSet>
#include <QTimer>

#include <memory>

class LNode;
class LTextEffectNode;

namespace player {
class ItemRenderer;
}

namespace workbench {

class LiveData;
class PageFiles;
class ProgrammeDocument;

/**
 * The pages of the document's text items, as the player makes them.
 *
 * What was made is kept until something that shows changes: the item's text, look or size, the
 * size of what is above it, or data that it shows, which is followed at once. Null nodes and those
 * outside the document have no pages. GUI thread.
 */
class ItemPages : public QObject
{
    Q_OBJECT

public:
    ItemPages(ProgrammeDocument *document, LiveData *data, QObject *parent = nullptr);
    ~ItemPages() override;

    /**
     * @p node is being edited: its page count is told to it, and its page files "DynamicData" are
     * kept up to date: gone the moment that something changes, there again a quarter of a second
     * after the last change, for texts that take long to lay out two seconds. Null watches none;
     * the one watched before has no files any more.
     */
    void watch(LTextEffectNode *node);

    /**
     * Page @p index, from 0, as the screen shows it. Null if there is none, or if it
     * is not found yet: while isCounting(), pagesChanged() tells that it is.
     */
    [[nodiscard]] QImage page(LTextEffectNode *node, int index);
    /**
     * 0 when no page can be made. Of a table with very many rows the pages found until now, which
     * grow, announced by pagesChanged(), while the event loop runs.
     */
    [[nodiscard]] int pageCount(LTextEffectNode *node);
    /** Whether a page or a count that was asked for is still being found. */
    [[nodiscard]] bool isCounting(const LTextEffectNode *node) const;
    /** Why the item is not shown as meant. */
    [[nodiscard]] player::Problems problems(LTextEffectNode *node);

signals:
    /** The pages of an item that was asked for or is watched are other ones: ask again. */
    void pagesChanged(LTextEffectNode *node);

private:
    struct Item
    {
        QPointer<LTextEffectNode> node;
        std::shared_ptr<player::ItemRenderer> renderer; ///< Null when it must be made.
        quint64 generation = 0;                         ///< Another one for other pages.
        QSet<QString> sources;                          ///< Whose data it shows.
        bool hadData = false;                           ///< Without any, it could not be told.
        int counted = 0;                                ///< Pages found until now.
        bool isCounted = false;                         ///< There are no more.
        bool isCounting = false;                        ///< Somebody waits for more of them.
        int sought = -1;                                ///< The page that is waited for.
        bool isChanged = false;                         ///< pagesChanged() is due.
        bool isNew = false;                             ///< The same, for the sake of new data.
    };

    void onAttributeChanged(LNode *node, const QString &key);
    void invalidateBelow(LNode *node);
    void invalidate(Item *item);
    void dropPages(Item *item);
    Item &itemOf(LTextEffectNode *node);
    void forget(LNode *node);
    void announce();
    void tell(const QVector<QPointer<LTextEffectNode>> &changed);
    void onDataChanged(const QStringList &names);
    void announceData();
    void count(Item *item, int enough);
    void countLater(Item *item);
    void countOn();
    void publish();
    void retranslate();
    player::ItemRenderer *renderer(LTextEffectNode *node);

    ProgrammeDocument *const m_document;
    LiveData *const m_data;
    QHash<const LNode *, Item> m_items;
    QVector<const LNode *> m_recent;             ///< With a renderer, the one used last at the end.
    QCache<QPair<quint64, int>, QImage> m_pages; ///< By generation and index; the cost is bytes.
    QPointer<LTextEffectNode> m_watched;
    std::unique_ptr<PageFiles> m_files;
    QTimer m_settle;
    QTimer m_fresh;    ///< Until new data is announced.
    QTimer m_counting; ///< While there are pages to be counted.
    quint64 m_nextGeneration = 1;
};

} // namespace workbench
