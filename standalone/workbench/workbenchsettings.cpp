#include "workbenchsettings.h"

#include "lappconfig.h"

namespace workbench {

namespace {

const QString LanguageKey = QStringLiteral("window/language");
const QString PaletteKey = QStringLiteral("window/palette");
const QString GeometryKey = QStringLiteral("window/geometry");
const QString StateKey = QStringLiteral("window/state");
const QString LedsKey = QStringLiteral("window/leds");
const QString LastFileKey = QStringLiteral("files/last");
const QString ExportKey = QStringLiteral("files/exportFolder");
const QString RanKey = QStringLiteral("files/ranBefore");

} // namespace

WorkbenchSettings::WorkbenchSettings()
    : m_file(LAppConfig::AppDataDir() + QStringLiteral("/workbench.ini"), QSettings::IniFormat)
{}

QString WorkbenchSettings::language() const
{
    return m_file.value(LanguageKey).toString();
}

void WorkbenchSettings::setLanguage(const QString &code)
{
    m_file.setValue(LanguageKey, code);
}

QString WorkbenchSettings::palette() const
{
    return m_file.value(PaletteKey, QStringLiteral("system")).toString();
}

void WorkbenchSettings::setPalette(const QString &name)
{
    m_file.setValue(PaletteKey, name);
}

QString WorkbenchSettings::lastFile() const
{
    return m_file.value(LastFileKey).toString();
}

void WorkbenchSettings::setLastFile(const QString &fileName)
{
    m_file.setValue(LastFileKey, fileName);
}

bool WorkbenchSettings::hasRunBefore() const
{
    return m_file.value(RanKey, false).toBool();
}

void WorkbenchSettings::setHasRunBefore()
{
    m_file.setValue(RanKey, true);
}

bool WorkbenchSettings::showsLeds() const
{
    return m_file.value(LedsKey, true).toBool();
}

void WorkbenchSettings::setShowsLeds(bool shows)
{
    m_file.setValue(LedsKey, shows);
}

QString WorkbenchSettings::exportFolder() const
{
    return m_file.value(ExportKey).toString();
}

void WorkbenchSettings::setExportFolder(const QString &folder)
{
    m_file.setValue(ExportKey, folder);
}

QByteArray WorkbenchSettings::geometry() const
{
    return m_file.value(GeometryKey).toByteArray();
}

QByteArray WorkbenchSettings::state() const
{
    return m_file.value(StateKey).toByteArray();
}

void WorkbenchSettings::setLayout(const QByteArray &geometry, const QByteArray &state)
{
    m_file.setValue(GeometryKey, geometry);
    m_file.setValue(StateKey, state);
}

void WorkbenchSettings::forgetLayout()
{
    m_file.remove(GeometryKey);
    m_file.remove(StateKey);
}

} // namespace workbench
