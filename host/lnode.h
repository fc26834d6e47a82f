#pragma once

#include "ldata.h"

#include <QList>
#include <QSize>

class LControllerNode;
class LFrameNode;
class LNodePrivate;
class LScreenNode;

/**
 * A node of the programme tree: controller, screens, frames, programme items.
 *
 * A parent owns its children and deletes them in order. The tree is changed through the operations
 * below only, never through QObject::setParent.
 */
class LCOMMON_EXPORT LNode : public LData
{
    Q_OBJECT

public:
    /**
     * Makes a node; with a @p parent it becomes that node's last child. Who listens to
     * ChildInserted then sees a node of the base class: append the finished node where that
     * matters.
     */
    explicit LNode(LNode *parent = nullptr);
    /** Deletes the children and leaves the parent, which announces ChildRemoved. */
    ~LNode() override;

    /** The parent, null for a root. */
    [[nodiscard]] LNode *ParentNode() const;
    /** The children in their order; never holds null. */
    [[nodiscard]] QList<LNode *> ChildNodes() const;

    /**
     * Makes @p child a child at @p index (clamped to the valid range) and takes ownership.
     * A child of another node leaves it first; one of this node is moved. False, and no change,
     * for a null child, the node itself and its own ancestors.
     */
    bool InsertChild(int index, LNode *child);
    /** Inserts behind the last child. */
    bool AppendChild(LNode *child);
    /** Lets a child go and passes it to the caller, who owns it; null when it is not a child. */
    LNode *TakeChild(LNode *child);
    /** Lets a child go and deletes it; false when it is not a child. */
    bool RemoveChild(LNode *child);
    /** Moves a child so that it stands at @p to afterwards; false for an index out of range. */
    bool MoveChild(int from, int to);

    /** Type text of the children that this node is made for; empty when it takes none or any. */
    [[nodiscard]] virtual QString ChildType() const;

    /** The screen: the node itself or its nearest ancestor of that class, null if none. */
    [[nodiscard]] LScreenNode *GetScreenNode() const;
    /** The frame: the node itself or its nearest ancestor of that class, null if none. */
    [[nodiscard]] LFrameNode *GetFrameNode() const;
    /** The controller: the node itself or its nearest ancestor of that class, null if none. */
    [[nodiscard]] LControllerNode *GetControllerNode() const;

    /** Width and height in screen pixels; invalid (-1, -1) until it is known. */
    [[nodiscard]] virtual QSize Size() const;
    /** Sets the node's own size in pixels; an invalid or empty size makes it unknown again. */
    void SetSize(const QSize &size);

    /** Identifier by which other systems name the item; empty by default, not checked. */
    [[nodiscard]] QString GetIdentifier() const;
    virtual void SetIdentifier(const QString &value);

signals:
    /** @p child is now a child and stands at @p index. */
    void ChildInserted(LNode *child, int index);
    /** @p child stood at @p index; it may be half destroyed, so only its address is of use. */
    void ChildRemoved(LNode *child, int index);
    /** The child that stood at @p from stands at @p to. */
    void ChildMoved(int from, int to);

private:
    Q_DISABLE_COPY(LNode)
    const QScopedPointer<LNodePrivate> d;
};
