#include "sourcelogging.h"

Q_LOGGING_CATEGORY(lcSources, "lctrlsex.sources", QtInfoMsg)
