#pragma once

#include "lcommon_global.h"

#include <QtGlobal>

class LNode;

/** What the host knows of a plug-in's items. Used on the GUI thread only. */
class LCOMMON_EXPORT LPluginManager
{
public:
    /** The one manager, made on first use; never null, lives as long as the process. */
    [[nodiscard]] static LPluginManager *instance();

    /** Whether the node's controller draws text over a transparent ground; false without one. */
    [[nodiscard]] bool TextTransparent(LNode *node) const;

private:
    LPluginManager();
    Q_DISABLE_COPY(LPluginManager)
};
