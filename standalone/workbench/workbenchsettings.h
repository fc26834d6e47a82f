#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

namespace workbench {

/** What the workbench remembers of its user, in workbench.ini of the application's data folder. */
class WorkbenchSettings
{
public:
    WorkbenchSettings();

    /** Code of the language, empty while none was chosen. */
    [[nodiscard]] QString language() const;
    void setLanguage(const QString &code);
    /** "system", "light" or "dark". */
    [[nodiscard]] QString palette() const;
    void setPalette(const QString &name);
    /** The programme that was open last, empty for none. */
    [[nodiscard]] QString lastFile() const;
    void setLastFile(const QString &fileName);
    /** Whether the program ran before. */
    [[nodiscard]] bool hasRunBefore() const;
    void setHasRunBefore();
    [[nodiscard]] bool showsLeds() const;
    void setShowsLeds(bool shows);
    /** Folder of the last export, empty for none. */
    [[nodiscard]] QString exportFolder() const;
    void setExportFolder(const QString &folder);

    /** Place and size of the window and its docks; empty, or of another version, when unknown. */
    [[nodiscard]] QByteArray geometry() const;
    [[nodiscard]] QByteArray state() const;
    void setLayout(const QByteArray &geometry, const QByteArray &state);
    void forgetLayout();

private:
    QSettings m_file;
};

} // namespace workbench
