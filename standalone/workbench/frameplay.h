#pragma once

#include "livenode.h"
#include "timeline.h"

#include <QImage>
#include <QVector>

class LTextEffectNode;

namespace workbench {

class ItemPages;

/**
 * Plays the items of one frame: which page is where at a moment, as a picture.
 *
 * It has no clock: times are milliseconds of one that never goes back. Nodes may be deleted at any
 * time and are played as empty pages then. Nothing is written to them. GUI thread.
 */
class FramePlay
{
public:
    /** Begins at @p now. @p seed tells the chance of one frame from that of another. */
    FramePlay(ItemPages *pages, qint64 now, quint32 seed);

    /** Plays these items in that order; the one that is playing goes on if it is among them. */
    void setItems(const QVector<LTextEffectNode *> &items, qint64 now);
    /**
     * Reads again how the items are played. The page that is shown stays; it comes in anew if it
     * would come in another way.
     */
    void refresh(qint64 now);
    /** The pages of an item became other ones; refresh() is due. */
    void dropPages(const LTextEffectNode *node);

    /** Goes on to @p now; whether picture() became another one. */
    bool advance(qint64 now);
    /** Milliseconds from @p now on in which nothing changes; 0 while something moves. */
    [[nodiscard]] qint64 rest(qint64 now) const;
    /** Makes the page that is shown next, unless the one now still moves in or out. */
    void prepareNext();

    /** The item that is playing; null without one. */
    [[nodiscard]] LTextEffectNode *item() const;
    [[nodiscard]] const QImage &picture() const { return m_picture; }
    [[nodiscard]] const player::PlayMoment &moment() const { return m_shown.moment; }
    /** Of the item that is playing, at least 1. */
    [[nodiscard]] int pageCount() const;

private:
    struct Entry
    {
        LiveNode<LTextEffectNode> node;
        int pageCount = 0;
        bool isCounted = false; ///< The count need not be asked for.
    };
    struct Page
    {
        LiveNode<LTextEffectNode> node;
        int index = -1;
        QImage image;
    };

    void adopt(const QVector<Entry> &entries, const player::FrameMoment &before, int item,
               qint64 now);
    void beginPage(const player::FrameMoment &at);
    [[nodiscard]] QImage pageImage(int item, int index);
    void takePage(const player::FrameMoment &at);
    [[nodiscard]] QImage draw() const;

    ItemPages *m_pages;
    QVector<Entry> m_entries;
    player::FrameTimeline m_timeline;
    qint64 m_start;
    quint32 m_seed; ///< Another one for each page that comes.
    player::FrameMoment m_shown;
    QImage m_under; ///< What the page comes in over.
    Page m_page;
    Page m_next;
    QImage m_picture;
};

} // namespace workbench
