#pragma once

#include "documentexport.h"
#include "pageposition.h"
#include "pagerenderer.h"

#include <QImage>
#include <QPointer>
#include <QStringList>

#include <functional>

class LRichViewEdit;
class LTextEffectNode;

namespace lctrlsex {

/**
 * Loads the document of a node into the view and pushes what the user made of it back; the only
 * writer of a node's document texts.
 *
 * Any call on the node may delete it or make the editor attach another one: what belongs to one
 * node is never written to another.
 */
class NodePublisher
{
public:
    explicit NodePublisher(LRichViewEdit *view);

    /** Forgets the node before and takes @p node, which may be null; nothing is read yet. */
    void attach(LTextEffectNode *node);
    [[nodiscard]] LTextEffectNode *node() const { return m_node; }

    /** How loading went. */
    struct Loaded
    {
        bool wasNew = false; ///< The stored document is empty.
        QString notice;      ///< Why it cannot be edited as it stands, for the user; else empty.
    };
    /**
     * Fills the view from the node. A stored document that cannot be read or shown stays on the
     * node as it is: the view then has the plain text, and nothing is pushed until replaceStored().
     */
    Loaded load();
    /** Lets the view's text take the place of a stored document that cannot be shown. */
    void replaceStored();
    [[nodiscard]] bool keepsStored() const { return m_keepsStored; }
    /** Why the stored document is kept, in the current language; empty when it is not. */
    [[nodiscard]] QString notice() const;

    /** While not loaded, changes of the document are not the user's and nothing is pushed. */
    void setLoaded(bool on) { m_isLoaded = on; }
    [[nodiscard]] bool isLoaded() const { return m_isLoaded; }

    /** The next push draws again even when the document is as it was. */
    void forceRedraw() { m_forceRedraw = true; }
    /** The same, and stores the display HTML again, for changes of the table's settings. */
    void forceStore() { m_forceRedraw = m_forceStore = true; }

    /** Takes the document as it is for what the node holds. */
    void takeAsStored();
    /** Whether the document differs from what was loaded or pushed last. */
    [[nodiscard]] bool isEdited() const;

    enum Pushed {
        Nothing, ///< Not loaded, no node, or nothing to say.
        Look,    ///< The document is as stored; pictures were made anew.
        Document ///< The texts were stored, and pictures made.
    };
    /** Stores the document's texts when they changed, then makes preview and thumbnail anew. */
    Pushed push();

    /** Page @p page, from 1, as the screen shows it; null when the node is gone or has no size. */
    [[nodiscard]] QImage pageImage(int page);
    [[nodiscard]] QImage currentImage() { return pageImage(int(m_position.page)); }
    /** To be called when images of the document changed. */
    void invalidateImages() { m_renderer.invalidate(); }

    /** Shows another page; false when it is shown already or the node is gone. */
    bool setPosition(PagePosition asked, bool notify);
    void resetPosition() { m_position = PagePosition(); }

private:
    /** The texts that a node keeps of a document. */
    struct Texts
    {
        QString raw;
        QString play;
        QString display;
        QString content;
    };

    /** Tells whether the node of a running operation is still the one that is attached. */
    [[nodiscard]] bool isStill(const QPointer<LTextEffectNode> &node, int attachment) const
    {
        return !node.isNull() && attachment == m_attachment;
    }
    Pushed pushNow(const QPointer<LTextEffectNode> &node, int attachment);
    bool storeTexts(const QPointer<LTextEffectNode> &node, int attachment);
    bool followTable(const QPointer<LTextEffectNode> &node,
                     const std::function<bool()> &isStillOurs);
    void storeContent(const QPointer<LTextEffectNode> &node, Texts *texts,
                      const std::function<bool()> &isStillOurs);
    void announce(const QPointer<LTextEffectNode> &node, int attachment);
    [[nodiscard]] Texts textsNow();

    Q_DISABLE_COPY(NodePublisher)

    LRichViewEdit *m_view;
    QPointer<LTextEffectNode> m_node;
    int m_attachment = 0; ///< Counts attach(), so that a node is told from itself attached anew.
    int m_pushing = 0;    ///< The attachment whose push is under way; 0: none.
    DocumentExport m_export;
    PageRenderer m_renderer;
    PagePosition m_position;
    QString m_rawText;      ///< What the node holds as long as nobody else writes it.
    Texts m_loaded;         ///< What it held when it was loaded: undoing everything brings it back.
    QStringList m_lostKeys; ///< Of a table that is gone: undo brings back both.
    int m_revision = -1;
    bool m_isLoaded = false;
    bool m_keepsStored = false;
    bool m_forceRedraw = false;
    bool m_forceStore = false;
    bool m_hasCut = false; ///< The templates on the node are no more those that were loaded.
};

} // namespace lctrlsex
