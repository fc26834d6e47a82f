#pragma once

#include "lcommon_global.h"

#include <QColor>
#include <QScopedPointer>
#include <QString>

class LAppConfigPrivate;
class QWidget;

/** What the plug-in asks of the application around it. Used on the GUI thread only. */
class LCOMMON_EXPORT LAppConfig
{
public:
    /** The one configuration, made on first use; never null, lives as long as the process. */
    [[nodiscard]] static LAppConfig *instance();

    /**
     * Folder of the application's own files, without a slash at its end: the environment variable
     * LCTRLSEX_APP_DIR, else ../share/lctrlsex beside the program's folder when it exists, else
     * the program's folder.
     */
    [[nodiscard]] static QString AppDir();
    /**
     * Folder of the user's data, without a slash at its end: the environment variable
     * LCTRLSEX_DATA_DIR, else "lctrlsex" in the user's data folder. It need not exist.
     */
    [[nodiscard]] static QString AppDataDir();

    /** Whether this is the edition for integrators, which shows identifiers. Default false. */
    [[nodiscard]] static bool IsSDKVersion();
    static void SetSDKVersion(bool value);

    /** Packs a colour: red + green * 256 + blue * 65536; alpha is dropped, invalid gives 0. */
    [[nodiscard]] static int ColorToInt(const QColor &color);
    /** The opaque colour of a packed one; the bits above the lowest 24 are ignored. */
    [[nodiscard]] static QColor IntToColor(int color);

    /** The window over which dialogs are centred; null before one is set and after it is gone. */
    [[nodiscard]] QWidget *GetMainWindow() const;
    void SetMainWindow(QWidget *window);

private:
    LAppConfig();
    ~LAppConfig();
    Q_DISABLE_COPY(LAppConfig)
    const QScopedPointer<LAppConfigPrivate> d;
};
