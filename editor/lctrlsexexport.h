#pragma once

#include <QtGlobal>

/** Marks the classes that the plug-in library offers to a host. */
#if defined(LCTRLSEX_LIBRARY)
#define LCTRLSEX_EXPORT Q_DECL_EXPORT
#else
#define LCTRLSEX_EXPORT Q_DECL_IMPORT
#endif
