#pragma once

#include <QtGlobal>

/** Marks what the host library exports; LCOMMON_LIBRARY is defined only while it is built. */
#if defined(LCOMMON_LIBRARY)
#define LCOMMON_EXPORT Q_DECL_EXPORT
#else
#define LCOMMON_EXPORT Q_DECL_IMPORT
#endif
