#include "leffectnode.h"

#include "lframenode.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct EffectRow
{
    int type;
    const char *name;
    bool display;
};

constexpr EffectRow s_effects[] = {
    {LEffectNode::NoEffect, QT_TRANSLATE_NOOP("LEffectNode", "No Effect"), true},
    {LEffectNode::RandomEffect, QT_TRANSLATE_NOOP("LEffectNode", "Random"), true},
    {LEffectNode::SlideLeft, QT_TRANSLATE_NOOP("LEffectNode", "Slide Left"), true},
    {LEffectNode::SlideRight, QT_TRANSLATE_NOOP("LEffectNode", "Slide Right"), true},
    {LEffectNode::SlideUp, QT_TRANSLATE_NOOP("LEffectNode", "Slide Up"), true},
    {LEffectNode::SlideDown, QT_TRANSLATE_NOOP("LEffectNode", "Slide Down"), true},
    {LEffectNode::WipeLeft, QT_TRANSLATE_NOOP("LEffectNode", "Wipe Left"), true},
    {LEffectNode::WipeRight, QT_TRANSLATE_NOOP("LEffectNode", "Wipe Right"), true},
    {LEffectNode::WipeUp, QT_TRANSLATE_NOOP("LEffectNode", "Wipe Up"), true},
    {LEffectNode::WipeDown, QT_TRANSLATE_NOOP("LEffectNode", "Wipe Down"), true},
    {LEffectNode::HorizontalBlinds, QT_TRANSLATE_NOOP("LEffectNode", "Horizontal Blinds"), true},
    {LEffectNode::VerticalBlinds, QT_TRANSLATE_NOOP("LEffectNode", "Vertical Blinds"), true},
    {LEffectNode::Fade, QT_TRANSLATE_NOOP("LEffectNode", "Fade"), true},
    {LEffectNode::Mosaic, QT_TRANSLATE_NOOP("LEffectNode", "Mosaic"), true},
    {LEffectNode::Laser, QT_TRANSLATE_NOOP("LEffectNode", "Laser"), true},
    {LEffectNode::CurtainOpen, QT_TRANSLATE_NOOP("LEffectNode", "Curtain Open"), true},
    {LEffectNode::CurtainClose, QT_TRANSLATE_NOOP("LEffectNode", "Curtain Close"), true},
    {LEffectNode::CurtainUp, QT_TRANSLATE_NOOP("LEffectNode", "Curtain Up"), true},
    {LEffectNode::CurtainDown, QT_TRANSLATE_NOOP("LEffectNode", "Curtain Down"), true},
    {LEffectNode::Scroll, QT_TRANSLATE_NOOP("LEffectNode", "Scroll"), true},
    {LEffectNode::Snow, QT_TRANSLATE_NOOP("LEffectNode", "Snow"), true},
    {LEffectNode::KeepPage, QT_TRANSLATE_NOOP("LEffectNode", "Keep Page"), false},
    {LEffectNode::BoxOut, QT_TRANSLATE_NOOP("LEffectNode", "Box Out"), true},
    {LEffectNode::BoxIn, QT_TRANSLATE_NOOP("LEffectNode", "Box In"), true},
    {LEffectNode::Blink, QT_TRANSLATE_NOOP("LEffectNode", "Blink"), true},
    {LEffectNode::Checkerboard, QT_TRANSLATE_NOOP("LEffectNode", "Checkerboard"), true},
};

LEffectItem effectItem(const EffectRow &row)
{
    return {QCoreApplication::translate("LEffectNode", row.name), QString(), row.type};
}

} // namespace

LEffectNode::LEffectNode(LNode *parent)
    : LNode(parent)
{}

LEffectNode::~LEffectNode() = default;

QSize LEffectNode::Size() const
{
    const QSize own = LNode::Size();
    const LFrameNode *const frame = GetFrameNode();
    return own.isValid() || !frame ? own : frame->Size();
}

QVector<LEffectItem> LEffectNode::GetDispEffectName()
{
    QVector<LEffectItem> items;
    for (const EffectRow &row : s_effects) {
        if (row.display) {
            items.append(effectItem(row));
        }
    }
    return items;
}

QVector<LEffectItem> LEffectNode::GetClearEffectName()
{
    QVector<LEffectItem> items;
    std::transform(std::cbegin(s_effects), std::cend(s_effects), std::back_inserter(items),
                   effectItem);
    return items;
}

void LEffectNode::Send3DAttributeChanged()
{
    emit Attribute3DChanged();
}

void LEffectNode::RestartPlay()
{
    emit RestartRequested();
}

void LEffectNode::ReDrawImaged()
{
    emit ReDrawRequested();
}
