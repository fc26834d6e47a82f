#include "lappconfig.h"

#include "lcolor.h"

#include <QCoreApplication>
#include <QDir>
#include <QPointer>
#include <QStandardPaths>
#include <QWidget>

class LAppConfigPrivate
{
public:
    QPointer<QWidget> mainWindow;
    bool sdkVersion = false;
};

LAppConfig::LAppConfig()
    : d(new LAppConfigPrivate)
{}

LAppConfig::~LAppConfig() = default;

LAppConfig *LAppConfig::instance()
{
    // Never destroyed: a plug-in may ask for it as late as in its own static destructors.
    static auto *const config = new LAppConfig;
    return config;
}

static QString folderFromEnvironment(const char *variable)
{
    const QString folder = qEnvironmentVariable(variable);
    return folder.isEmpty() ? folder : QDir::cleanPath(QDir(folder).absolutePath());
}

QString LAppConfig::AppDir()
{
    const QString chosen = folderFromEnvironment("LCTRLSEX_APP_DIR");
    if (!chosen.isEmpty()) {
        return chosen;
    }
    if (!QCoreApplication::instance()) {
        return QDir::currentPath();
    }
    const QString program = QCoreApplication::applicationDirPath();
    const QString shared = QDir::cleanPath(program + QStringLiteral("/../share/lctrlsex"));
    return QDir(shared).exists() ? shared : program;
}

QString LAppConfig::AppDataDir()
{
    const QString chosen = folderFromEnvironment("LCTRLSEX_DATA_DIR");
    if (!chosen.isEmpty()) {
        return chosen;
    }
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/lctrlsex");
}

bool LAppConfig::IsSDKVersion()
{
    return instance()->d->sdkVersion;
}

void LAppConfig::SetSDKVersion(bool value)
{
    instance()->d->sdkVersion = value;
}

int LAppConfig::ColorToInt(const QColor &color)
{
    return static_cast<int>(QColor_TO_BGR(color));
}

QColor LAppConfig::IntToColor(int color)
{
    return BGR_TO_QColor(static_cast<unsigned int>(color));
}

QWidget *LAppConfig::GetMainWindow() const
{
    return d->mainWindow;
}

void LAppConfig::SetMainWindow(QWidget *window)
{
    d->mainWindow = window;
}
