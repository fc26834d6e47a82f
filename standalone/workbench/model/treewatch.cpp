#include "treewatch.h"

#include "lnode.h"

namespace workbench {

TreeWatch::TreeWatch(QObject *parent)
    : QObject(parent)
{}

void TreeWatch::setRoot(LNode *root)
{
    for (LNode *node : qAsConst(m_known)) {
        node->disconnect(this);
    }
    m_known.clear();
    m_root = root;
    if (root) {
        watch(root);
    }
}

bool TreeWatch::contains(const LNode *node) const
{
    while (node && node != m_root) {
        node = node->ParentNode();
    }
    return node != nullptr;
}

void TreeWatch::watch(LNode *node)
{
    if (!m_known.contains(node)) {
        watchOne(node);
    }
    const QList<LNode *> children = node->ChildNodes();
    for (LNode *child : children) {
        watch(child);
    }
}

void TreeWatch::watchOne(LNode *node)
{
    m_known.insert(node);
    connect(node, &QObject::destroyed, this, [this, node] {
        m_known.remove(node);
        if (m_root == node) {
            m_root = nullptr;
        }
        emit gone(node);
    });
    connect(node, &LData::AttributeChanged, this,
            [this, node](const QString &key) { emit attributeChanged(node, key); });
    connect(node, &LNode::ChildInserted, this, [this, node](LNode *child, int index) {
        watch(child);
        emit childInserted(node, child, index);
    });
    connect(node, &LNode::ChildRemoved, this,
            [this, node](LNode *child, int index) { emit childRemoved(node, child, index); });
    connect(node, &LNode::ChildMoved, this,
            [this, node](int from, int to) { emit childMoved(node, from, to); });
    emit watched(node);
}

} // namespace workbench
