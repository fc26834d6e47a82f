#pragma once

#include <QLoggingCategory>

/** Everything that the host library of the stand-alone programs reports. */
Q_DECLARE_LOGGING_CATEGORY(lcLcommon)
