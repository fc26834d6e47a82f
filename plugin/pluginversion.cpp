#include "pluginversion.h"

const char *lctrlsexPluginVersion()
{
    return LCTRLSEX_VERSION;
}
