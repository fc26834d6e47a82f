#include "lcontrollernode.h"

LControllerNode::LControllerNode(LNode *parent)
    : LNode(parent)
{}

LControllerNode::~LControllerNode() = default;

QString LControllerNode::TypeText() const
{
    return QStringLiteral("Controller");
}

QString LControllerNode::ChildType() const
{
    return QStringLiteral("Screen");
}
