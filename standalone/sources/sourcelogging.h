#pragma once

#include <QLoggingCategory>

/** Everything that data sources report. */
Q_DECLARE_LOGGING_CATEGORY(lcSources)
