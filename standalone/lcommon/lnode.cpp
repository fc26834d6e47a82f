#include "lnode.h"

#include "attributestore.h"
#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"

#include <QPointer>

#include <utility>

static const QString s_widthKey = QStringLiteral("Width");
static const QString s_heightKey = QStringLiteral("Height");

class LNodePrivate
{
public:
    LNode *parent = nullptr;
    QList<LNode *> children;
};

LNode::LNode(LNode *parent)
    : LData(nullptr)
    , d(new LNodePrivate)
{
    if (parent) {
        parent->AppendChild(this);
    }
}

LNode::~LNode()
{
    if (d->parent) {
        d->parent->TakeChild(this);
    }
    // Not left to QObject: by then this would no longer be a node that a child can look up to.
    // What a listener adds meanwhile goes, too.
    while (!d->children.isEmpty()) {
        LNode *const child = d->children.takeFirst();
        child->d->parent = nullptr;
        delete child;
    }
}

LNode *LNode::ParentNode() const
{
    return d->parent;
}

QList<LNode *> LNode::ChildNodes() const
{
    return d->children;
}

static bool isSelfOrAncestor(const LNode *candidate, const LNode *node)
{
    while (node && node != candidate) {
        node = node->ParentNode();
    }
    return node != nullptr;
}

bool LNode::InsertChild(int index, LNode *child)
{
    if (!child || isSelfOrAncestor(child, this)) {
        return false;
    }
    if (child->d->parent == this) {
        const int last = d->children.size() - 1;
        return MoveChild(d->children.indexOf(child), qBound(0, index, last));
    }
    if (child->d->parent) {
        const QPointer<LNode> self(this);
        const QPointer<LNode> guard(child);
        child->d->parent->TakeChild(child);
        // A listener may have put either of them anywhere.
        if (!self || !guard || child->d->parent || isSelfOrAncestor(child, this)) {
            return false;
        }
    }
    const int place = qBound(0, index, d->children.size());
    d->children.insert(place, child);
    child->d->parent = this;
    child->setParent(this);
    emit ChildInserted(child, place);
    return true;
}

bool LNode::AppendChild(LNode *child)
{
    return InsertChild(d->children.size(), child);
}

LNode *LNode::TakeChild(LNode *child)
{
    const int index = d->children.indexOf(child);
    if (index < 0) {
        return nullptr;
    }
    d->children.removeAt(index);
    child->d->parent = nullptr;
    child->setParent(nullptr);
    emit ChildRemoved(child, index);
    return child;
}

bool LNode::RemoveChild(LNode *child)
{
    const QPointer<LNode> guard(child);
    if (!TakeChild(child)) {
        return false;
    }
    // A listener may have deleted it or given it another parent.
    if (guard && !guard->d->parent) {
        delete guard.data();
    }
    return true;
}

bool LNode::MoveChild(int from, int to)
{
    const int count = d->children.size();
    if (from < 0 || from >= count || to < 0 || to >= count) {
        return false;
    }
    if (from != to) {
        d->children.move(from, to);
        emit ChildMoved(from, to);
    }
    return true;
}

QString LNode::ChildType() const
{
    return QString();
}

template <typename Node>
static Node *nearest(const LNode *node)
{
    for (; node; node = node->ParentNode()) {
        if (auto *const found = qobject_cast<Node *>(const_cast<LNode *>(node))) {
            return found;
        }
    }
    return nullptr;
}

LScreenNode *LNode::GetScreenNode() const
{
    return nearest<LScreenNode>(this);
}

LFrameNode *LNode::GetFrameNode() const
{
    return nearest<LFrameNode>(this);
}

LControllerNode *LNode::GetControllerNode() const
{
    return nearest<LControllerNode>(this);
}

QSize LNode::Size() const
{
    const QSize size(readAttribute(Attribute(s_widthKey), -1),
                     readAttribute(Attribute(s_heightKey), -1));
    return size.isEmpty() ? QSize() : size;
}

void LNode::SetSize(const QSize &size)
{
    const bool known = !size.isEmpty();
    SetAttributes({{s_widthKey, known ? QVariant(size.width()) : QVariant()},
                   {s_heightKey, known ? QVariant(size.height()) : QVariant()}});
}
