#include "nodepage.h"

#include "imageeffects.h"
#include "lappconfig.h"
#include "lpluginmanager.h"
#include "ltexteffectnode.h"
#include "nodecall.h"

namespace lctrlsex {

TextSettings textSettingsOf(const LTextEffectNode *item)
{
    const QPointer<const LTextEffectNode> node(item);
    TextSettings settings;
    if (!node.isNull()) {
        settings.fontFamily = nodeCall(node, &LTextEffectNode::GetFontFamily);
        settings.fontSize = nodeCall(node, &LTextEffectNode::GetFontSize);
        settings.fontSpace = nodeCall(node, &LTextEffectNode::GetFontSpace);
        settings.antialias = nodeCall(node, &LTextEffectNode::GetTextAntialias);
        settings.singleLine = nodeCall(node, &LTextEffectNode::GetSingleMode) == 1;
    }
    return settings;
}

PageStyle pageStyleOf(const LTextEffectNode *item)
{
    const QPointer<const LTextEffectNode> node(item);
    PageStyle style;
    if (!node.isNull()) {
        style.size = nodeCall(node, &LTextEffectNode::Size);
        style.isTransparent = nodeCall(node, &LTextEffectNode::GetTransBgColor);
        style.background = LAppConfig::IntToColor(nodeCall(node, &LTextEffectNode::GetEditBgColor));
    }
    return style;
}

PageFinish pageFinishOf(LTextEffectNode *item)
{
    const QPointer<LTextEffectNode> node(item);
    PageFinish finish;
    if (!node.isNull()) {
        finish.isHollow = nodeCall(node, &LTextEffectNode::GetUseHollow) != 0;
        finish.hasStroke = nodeCall(node, &LTextEffectNode::GetUseStroke) != 0;
        finish.strokeColor =
            LAppConfig::IntToColor(nodeCall(node, &LTextEffectNode::GetStrokeColor));
        finish.contentAlign = nodeCall(node, &LTextEffectNode::GetContentAlign);
        finish.textTransparent = LPluginManager::instance()->TextTransparent(node);
    }
    return finish;
}

PageEffects hostEffects()
{
    return {[](const QImage &image) { return getHollowImage(image); },
            [](const QImage &image, const QColor &color) {
                return getStrokeImage(image, color);
            }};
}

} // namespace lctrlsex
