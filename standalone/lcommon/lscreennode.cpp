#include "lscreennode.h"

#include "lcontrollernode.h"

LScreenNode::LScreenNode(LNode *parent)
    : LNode(parent)
{}

LScreenNode::~LScreenNode() = default;

QString LScreenNode::TypeText() const
{
    return QStringLiteral("Screen");
}

QString LScreenNode::ChildType() const
{
    return QStringLiteral("Frame");
}

QSize LScreenNode::Size() const
{
    const QSize own = LNode::Size();
    const LControllerNode *const controller = GetControllerNode();
    return own.isValid() || !controller ? own : controller->Size();
}

bool LScreenNode::IsLCDDevice() const
{
    const LControllerNode *const controller = GetControllerNode();
    return controller && controller->GetDeviceKind() == QLatin1String("LCD");
}

QString LScreenNode::GetDeviceModel() const
{
    const LControllerNode *const controller = GetControllerNode();
    return controller ? controller->GetDeviceModel() : QString();
}
