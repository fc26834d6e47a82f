#pragma once

#include <QObject>
#include <QPointer>

namespace workbench {

/**
 * Points at a node for as long as it is one of its class. A node that is being deleted tells its
 * programme so when only an LNode is left of it; a QPointer still takes it for the whole then.
 */
template <class Node>
class LiveNode
{
public:
    LiveNode(Node *node = nullptr) // NOLINT: stands for the pointer
        : m_object(node)
    {}

    /** Null once the node is going or gone. */
    [[nodiscard]] Node *data() const { return qobject_cast<Node *>(m_object.data()); }
    operator Node *() const { return data(); } // NOLINT: stands for the pointer

private:
    QPointer<QObject> m_object;
};

} // namespace workbench
