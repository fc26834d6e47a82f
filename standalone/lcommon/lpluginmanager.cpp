#include "lpluginmanager.h"

#include "lcontrollernode.h"

LPluginManager::LPluginManager() = default;

LPluginManager *LPluginManager::instance()
{
    // Never destroyed: a plug-in may ask for it as late as in its own static destructors.
    static auto *const manager = new LPluginManager;
    return manager;
}

bool LPluginManager::TextTransparent(LNode *node) const
{
    const LControllerNode *const controller = node ? node->GetControllerNode() : nullptr;
    return controller && controller->GetTextTransparent();
}
