#include "lframenode.h"

#include "attributestore.h"
#include "lscreennode.h"

#include <QPointer>

static const QString s_enableKey = QStringLiteral("FrameEnable");
static const QString s_typeKey = QStringLiteral("FrameType");
static const QString s_effectKey = QStringLiteral("FrameEffect");
static const QString s_speedKey = QStringLiteral("FrameSpeed");
static const QString s_leftKey = QStringLiteral("X");
static const QString s_topKey = QStringLiteral("Y");
static const QString s_widthKey = QStringLiteral("Width");
static const QString s_heightKey = QStringLiteral("Height");

class LFrameNodePrivate
{
public:
    /** Announces what became another one since the last time. */
    void announce(LFrameNode *node);

    LFrame frame;
    QRect rect;
};

void LFrameNodePrivate::announce(LFrameNode *node)
{
    const bool frameChanged = frame != node->GetFrame();
    const bool rectChanged = rect != node->GetRect();
    frame = node->GetFrame();
    rect = node->GetRect();
    const QPointer<LFrameNode> guard(node);
    if (frameChanged) {
        emit node->FrameChanged();
    }
    if (rectChanged && guard) {
        emit node->RectChanged();
    }
}

LFrameNode::LFrameNode(LNode *parent)
    : LNode(parent)
    , d(new LFrameNodePrivate)
{
    d->frame = GetFrame();
    d->rect = GetRect();
    connect(this, &LData::AttributeChanged, this, [this] { d->announce(this); });
}

LFrameNode::~LFrameNode() = default;

QString LFrameNode::TypeText() const
{
    return QStringLiteral("Frame");
}

QString LFrameNode::ChildType() const
{
    return QStringLiteral("Text");
}

QSize LFrameNode::Size() const
{
    const QSize own = LNode::Size();
    const LScreenNode *const screen = GetScreenNode();
    return own.isValid() || !screen ? own : screen->Size();
}

QRect LFrameNode::GetRect() const
{
    const int left = readAttribute(Attribute(s_leftKey), 0);
    const int top = readAttribute(Attribute(s_topKey), 0);
    return {QPoint(left, top), Size()};
}

void LFrameNode::SetRect(const QRect &rect)
{
    const bool known = !rect.isEmpty();
    SetAttributes({{s_leftKey, rect.x()},
                   {s_topKey, rect.y()},
                   {s_widthKey, known ? QVariant(rect.width()) : QVariant()},
                   {s_heightKey, known ? QVariant(rect.height()) : QVariant()}});
}

LFrame LFrameNode::GetFrame() const
{
    LFrame frame;
    frame.SetEnable(readAttribute(Attribute(s_enableKey), frame.Enable()));
    frame.SetFrameType(readAttribute(Attribute(s_typeKey), frame.FrameType()));
    frame.SetEffect(readAttribute(Attribute(s_effectKey), frame.Effect()));
    frame.SetSpeed(readAttribute(Attribute(s_speedKey), frame.Speed()));
    return frame;
}

void LFrameNode::SetFrame(const LFrame &frame)
{
    SetAttributes({{s_enableKey, frame.Enable()},
                   {s_typeKey, frame.FrameType()},
                   {s_effectKey, frame.Effect()},
                   {s_speedKey, frame.Speed()}});
}
