#include "drawnicons.h"
#include "ltranslation.h"
#include "mainwindow.h"
#include "wallpanel.h"
#include "wallplayer.h"
#include "wallview.h"

#include <QAction>
#include <QActionGroup>
#include <QDockWidget>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>

namespace workbench {

namespace {

/** A language in its own words. */
QString languageName(const QString &code)
{
    if (code == QLatin1String("en")) {
        return QStringLiteral("English");
    }
    if (code == QLatin1String("zh_CN")) {
        return QStringLiteral("中文");
    }
    const QString name = QLocale(code).nativeLanguageName();
    return name.isEmpty() ? code : name;
}

} // namespace

void MainWindow::buildViewMenu()
{
    auto *menu = nameMenu(menuBar()->addMenu(QString()), QStringLiteral("ViewMenu"),
                          [] { return tr("&View"); });
    for (QDockWidget *dock :
         {m_programmeDock, m_propertiesDock, m_layoutDock, m_dataDock, m_wallDock}) {
        dock->toggleViewAction()->setObjectName(QStringLiteral("Show") + dock->objectName());
        menu->addAction(dock->toggleViewAction());
    }
    menu->addSeparator();
    buildPlayActions(menu);
    menu->addSeparator();
    WallView *wall = m_wall->view();
    addAction(
        menu, QStringLiteral("ZoomIn"), [] { return tr("Wall: &Larger Pixels"); },
        [wall] { wall->zoomIn(); })
        ->setShortcuts(
            {QKeySequence(QKeySequence::ZoomIn), QKeySequence(Qt::CTRL + Qt::Key_Equal)});
    addAction(
        menu, QStringLiteral("ZoomOut"), [] { return tr("Wall: &Smaller Pixels"); },
        [wall] { wall->zoomOut(); })
        ->setShortcut(QKeySequence::ZoomOut);
    addAction(
        menu, QStringLiteral("ZoomFit"), [] { return tr("Wall: &Fit"); },
        [wall] { wall->zoomToFit(); })
        ->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_0));
    m_ledGrid = addAction(
        menu, QStringLiteral("LedGrid"), [] { return tr("Wall: Round L&EDs"); }, [] {});
    m_ledGrid->setCheckable(true);
    m_ledGrid->setChecked(m_settings.showsLeds());
    m_wall->setShowsLeds(m_settings.showsLeds());
    connect(m_ledGrid, &QAction::toggled, m_wall, &WallPanel::setShowsLeds);
    menu->addSeparator();
    buildPaletteMenu();
    buildLanguageMenu();
    menu->addSeparator();
    addAction(
        menu, QStringLiteral("ResetLayout"), [] { return tr("&Reset Layout"); },
        [this] { resetLayout(); });
}

void MainWindow::buildPlayActions(QMenu *menu)
{
    WallPlayer *player = m_wall->player();
    const auto text = [player] {
        return player->state() == WallPlayer::Playing ? tr("Wall: Pa&use") : tr("Wall: Pla&y");
    };
    m_play = addAction(menu, QStringLiteral("Play"), text, [player] { player->toggle(); });
    m_play->setShortcut(QKeySequence(Qt::Key_F5));
    m_stop = addAction(
        menu, QStringLiteral("StopPlay"), [] { return tr("Wall: S&top"); },
        [player] { player->stop(); });
    m_stop->setShortcut(QKeySequence(Qt::SHIFT + Qt::Key_F5));
    connect(player, &WallPlayer::stateChanged, this, [this] {
        retranslateActions();
        updatePlayActions();
        updatePlayIcons();
    });
    connect(m_wall, &WallPanel::statusChanged, this, &MainWindow::updatePlayActions);
    updatePlayActions();
    updatePlayIcons();
}

void MainWindow::updatePlayActions()
{
    m_play->setEnabled(m_wall->screen() != nullptr);
    m_stop->setEnabled(m_wall->player()->isOn());
}

void MainWindow::updatePlayIcons()
{
    if (m_play == nullptr) {
        return; // The palette changes before there are menus, too.
    }
    const bool plays = m_wall->player()->state() == WallPlayer::Playing;
    m_play->setIcon(drawnIcon(plays ? Drawing::Pause : Drawing::Play, palette()));
    m_stop->setIcon(drawnIcon(Drawing::Stop, palette()));
}

void MainWindow::buildPaletteMenu()
{
    auto *view = findChild<QMenu *>(QStringLiteral("ViewMenu"));
    QMenu *menu = nameMenu(view->addMenu(QString()), QStringLiteral("PaletteMenu"),
                           [] { return tr("&Palette"); });
    m_palettes = new QActionGroup(this);
    const auto add = [this, menu](PaletteChoice choice, std::function<QString()> text) {
        QAction *action = addAction(menu, QStringLiteral("Palette.") + paletteName(choice),
                                    std::move(text), [this, choice] { choosePalette(choice); });
        action->setCheckable(true);
        action->setChecked(paletteFromName(m_settings.palette()) == choice);
        m_palettes->addAction(action);
    };
    add(PaletteChoice::System, [] { return tr("&System"); });
    add(PaletteChoice::Light, [] { return tr("&Light"); });
    add(PaletteChoice::Dark, [] { return tr("&Dark"); });
}

void MainWindow::buildLanguageMenu()
{
    auto *view = findChild<QMenu *>(QStringLiteral("ViewMenu"));
    QMenu *menu = nameMenu(view->addMenu(QString()), QStringLiteral("LanguageMenu"),
                           [] { return tr("Lan&guage"); });
    m_languages = new QActionGroup(this);
    const QStringList codes = LTranslation::instance()->AvailableLanguages();
    for (const QString &code : codes) {
        QAction *action = menu->addAction(languageName(code));
        action->setObjectName(QStringLiteral("Language.") + code);
        action->setCheckable(true);
        action->setChecked(code == LTranslation::instance()->Language());
        action->setData(code);
        connect(action, &QAction::triggered, this, [this, code] { chooseLanguage(code); });
        m_languages->addAction(action);
    }
}

void MainWindow::choosePalette(PaletteChoice choice)
{
    applyPalette(choice);
    m_settings.setPalette(paletteName(choice));
}

void MainWindow::chooseLanguage(const QString &code)
{
    if (LTranslation::instance()->SetLanguage(code)) {
        m_settings.setLanguage(code);
    }
}

} // namespace workbench
