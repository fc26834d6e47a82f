#pragma once

#include "fontfolder.h"
#include "pageexport.h"
#include "palettes.h"
#include "pluginloader.h"
#include "programmefile.h"
#include "recovery.h"
#include "workbenchsettings.h"

#include <QMainWindow>
#include <QPointer>

#include <functional>

class LNode;
class LTextEffectNode;
class QActionGroup;
class QDockWidget;
class QLabel;
class QMenu;

namespace workbench {

class Autosave;
class DataPanel;
class EditorPane;
class ItemPages;
class LayoutPanel;
class LiveData;
class NoticeArea;
class ProgrammeDocument;
class ProgrammePanel;
class ProgrammeTreeModel;
class RecentFiles;
class StructureActions;
class Thumbnails;
class WallPanel;

/**
 * The workbench's window: the programme's tree, the editor of the current item with its
 * properties, and the wall.
 *
 * Bodies are in a file a topic: mainwindow (life), mainwindow_actions (menus), mainwindow_text,
 * mainwindow_view, mainwindow_files, mainwindow_recovery, mainwindow_docks and
 * mainwindow_selection.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow(const LoadedPlugin &plugin, const FontFolder::Result &fonts,
               QWidget *parent = nullptr);
    ~MainWindow() override;

    /**
     * Opens @p fileName; without one the programme that was open last, and a copy of the demo
     * programme the first time. Then offers what a crash left behind.
     */
    void start(const QString &fileName);

    [[nodiscard]] ProgrammeDocument *document() const { return m_document; }
    [[nodiscard]] NoticeArea *notices() const { return m_notices; }
    [[nodiscard]] WallPanel *wall() const { return m_wall; }

    /** Opens a file in place of the programme, without asking; an error is shown as a notice. */
    bool openFile(const QString &fileName);
    /** Selects a node in the tree, which binds the editor. */
    void selectNode(LNode *node);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    // Life
    void buildCentre(const LoadedPlugin &plugin);
    void buildStatusBar();
    void connectDocument();
    void updateTitle();
    void updateStatus();
    void retranslate();

    // Actions
    void buildMenus();
    void buildFileMenu();
    void buildEditMenu();
    void buildTextMenu();
    void buildViewMenu();
    void buildPlayActions(QMenu *menu);
    void updatePlayActions();
    void updatePlayIcons();
    void buildPaletteMenu();
    void buildLanguageMenu();
    /** Gives a new menu its object name, and its title in every language. */
    QMenu *nameMenu(QMenu *menu, const QString &name, std::function<QString()> title);
    QAction *addAction(QMenu *menu, const QString &name, std::function<QString()> text,
                       std::function<void()> run);
    void retranslateActions();
    void updateHistoryActions();
    void updateClipboardActions();
    void updateTextActions();
    void fillRecentMenu();
    void forwardToFocus(const char *slot);
    void choosePalette(PaletteChoice choice);
    void chooseLanguage(const QString &code);
    void showAbout();

    // Files
    void newFile();
    void chooseAndOpen();
    void openAsked(const QString &fileName);
    bool save();
    bool saveAs();
    bool saveUnder(const QString &fileName);
    /** Asks what is to become of unsaved changes; false when the user wants to stay. */
    bool mayLeave();
    void openFirst(const QString &fileName);
    /** Remembers the file that was opened or saved, or shows the error; false for an error. */
    bool noteOutcome(const QString &fileName, const ProgrammeError &error);
    void noteError(const QString &fileName, const ProgrammeError &error);
    void exportPages();
    void tellExport(const PageExport::Result &result, const QString &folder);
    void offerNextRecovery();
    void offerRecovery(const Recovery &recovery);
    void restore(const Recovery &recovery);
    void openSavedInstead(const Recovery &recovery);
    /** The name that the user chose in a dialog, empty when none was. */
    QString askForFile(bool toSave, const QString &start);

    // Docks
    void buildDocks();
    void connectData();
    [[nodiscard]] QVector<QDockWidget *> docks() const;
    QDockWidget *addDock(const QString &name, QWidget *content, Qt::DockWidgetArea area);
    void applyDefaultLayout();
    void restoreLayout();
    void saveLayout();
    void resetLayout();
    void retranslateDocks();

    // Selection
    void onNodeSelected(LNode *node);
    void letGoOfNodes();
    void letGoOf(LNode *node);
    void selectFirstItem();
    void addItemHere();

    WorkbenchSettings m_settings;
    ProgrammeDocument *m_document;
    LiveData *m_live;
    ItemPages *m_pages;
    Autosave *m_autosave;
    RecentFiles *m_recent;
    ProgrammeTreeModel *m_model;
    StructureActions *m_structure;
    Thumbnails *m_thumbnails;
    FontFolder::Result m_fonts;

    NoticeArea *m_notices;
    EditorPane *m_editor;
    ProgrammePanel *m_programme;
    LayoutPanel *m_layout;
    DataPanel *m_data;
    WallPanel *m_wall;
    QDockWidget *m_programmeDock = nullptr;
    QDockWidget *m_propertiesDock = nullptr;
    QDockWidget *m_layoutDock = nullptr;
    QDockWidget *m_dataDock = nullptr;
    QDockWidget *m_wallDock = nullptr;

    struct TextOfAction
    {
        QAction *action;
        std::function<QString()> text;
    };
    QVector<TextOfAction> m_texts; ///< How to name each action and menu in the current language.
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_cut = nullptr;
    QAction *m_copy = nullptr;
    QAction *m_paste = nullptr;
    QVector<QAction *> m_conversions;
    QAction *m_antialiasingOff = nullptr; ///< One of them.
    QAction *m_insertImage = nullptr;
    QAction *m_ledGrid = nullptr;
    QAction *m_play = nullptr;
    QAction *m_stop = nullptr;
    QMenu *m_recentMenu = nullptr;
    QActionGroup *m_palettes = nullptr;
    QActionGroup *m_languages = nullptr;

    QLabel *m_statusSize = nullptr;
    QLabel *m_statusPage = nullptr;
    QLabel *m_statusZoom = nullptr;
    QLabel *m_statusFonts = nullptr;

    QVector<Recovery> m_recoveries;
    bool m_isLayoutApplied = false;
};

} // namespace workbench
