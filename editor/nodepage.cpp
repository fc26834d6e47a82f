#include "nodepage.h"

#include "imageeffects.h"
#include "lappconfig.h"
#include "lpluginmanager.h"
#include "ltexteffectnode.h"

namespace lctrlsex {

TextSettings textSettingsOf(const LTextEffectNode *node)
{
    TextSettings settings;
    if (node != nullptr) {
        settings.fontFamily = node->GetFontFamily();
        settings.fontSize = node->GetFontSize();
        settings.fontSpace = node->GetFontSpace();
        settings.singleLine = node->GetSingleMode() == 1;
    }
    return settings;
}

PageStyle pageStyleOf(const LTextEffectNode *node)
{
    PageStyle style;
    if (node != nullptr) {
        style.size = node->Size();
        style.isTransparent = node->GetTransBgColor();
        style.background = LAppConfig::IntToColor(node->GetEditBgColor());
    }
    return style;
}

PageFinish pageFinishOf(LTextEffectNode *node)
{
    PageFinish finish;
    if (node != nullptr) {
        finish.isHollow = node->GetUseHollow() != 0;
        finish.hasStroke = node->GetUseStroke() != 0;
        finish.strokeColor = LAppConfig::IntToColor(node->GetStrokeColor());
        finish.contentAlign = node->GetContentAlign();
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
