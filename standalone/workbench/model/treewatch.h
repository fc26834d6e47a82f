#pragma once

#include <QObject>
#include <QSet>

class LNode;

namespace workbench {

/**
 * Listens to every node of one tree, those that join it later included, so that whoever is
 * interested listens to one object. A node that left the tree is still listened to, since undo may
 * bring it back: ask contains() where that matters. GUI thread.
 */
class TreeWatch : public QObject
{
    Q_OBJECT

public:
    explicit TreeWatch(QObject *parent = nullptr);

    /** Listens to @p root and all below it and to nothing else; null listens to nothing. */
    void setRoot(LNode *root);
    [[nodiscard]] LNode *root() const { return m_root; }
    /** Whether @p node is the root or stands below it; false for null. */
    [[nodiscard]] bool contains(const LNode *node) const;

signals:
    /** Sent once for each node, before anything else is sent of it. */
    void watched(LNode *node);
    /** A node is being deleted: its address is of use, nothing else. */
    void gone(LNode *node);
    void attributeChanged(LNode *node, const QString &key);
    void childInserted(LNode *parent, LNode *child, int index);
    /** @p child may be half destroyed. */
    void childRemoved(LNode *parent, LNode *child, int index);
    void childMoved(LNode *parent, int from, int to);

private:
    void watch(LNode *node);
    void watchOne(LNode *node);

    LNode *m_root = nullptr;
    QSet<LNode *> m_known;
};

} // namespace workbench
