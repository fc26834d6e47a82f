#include "lcommonlogging.h"

Q_LOGGING_CATEGORY(lcLcommon, "lctrlsex.lcommon", QtInfoMsg)
