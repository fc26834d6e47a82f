#pragma once

#include <QtGlobal>

/**
 * The version of the plug-in as "major.minor.patch".
 *
 * A host that loaded the library at run time resolves it by this very name and compares
 * before it touches anything else. The text is ASCII, never null, and lives as long as
 * the library stays loaded. Any thread may call it.
 */
extern "C" [[nodiscard]] Q_DECL_EXPORT const char *lctrlsexPluginVersion();
