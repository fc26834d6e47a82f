#include "datapanel.h"
#include "editorpane.h"
#include "layoutpanel.h"
#include "ltexteffectnode.h"
#include "mainwindow.h"
#include "noticebar.h"
#include "programmepanel.h"
#include "wallpanel.h"

#include <QAbstractButton>
#include <QAction>
#include <QDockWidget>
#include <QScreen>
#include <QScrollArea>
#include <QShowEvent>
#include <QTabBar>

namespace workbench {

namespace {

/** Changed whenever docks come or go, so that an older state is not applied to them. */
constexpr int LayoutVersion = 2;

constexpr int ProgrammeWidth = 250;
constexpr int PropertiesWidth = 285;
/** From this height of the window on layout and item properties fit below each other. */
constexpr int HeightForBoth = 900;

} // namespace

void MainWindow::buildDocks()
{
    setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks);
    // The tree is long, the wall wide.
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::BottomDockWidgetArea);
    setTabPosition(Qt::RightDockWidgetArea, QTabWidget::North);

    m_programme = new ProgrammePanel(m_model, m_structure, this);
    m_layout = new LayoutPanel(m_document, this);
    auto *layoutArea = new QScrollArea(this);
    layoutArea->setWidgetResizable(true);
    layoutArea->setFrameShape(QFrame::NoFrame);
    layoutArea->setWidget(m_layout);
    m_data = new DataPanel(m_live, this);
    m_wall = new WallPanel(m_pages, this);

    m_programmeDock = addDock(QStringLiteral("ProgrammeDock"), m_programme, Qt::LeftDockWidgetArea);
    m_propertiesDock = addDock(QStringLiteral("PropertiesDock"), m_editor->attributesArea(),
                               Qt::RightDockWidgetArea);
    m_layoutDock = addDock(QStringLiteral("LayoutDock"), layoutArea, Qt::RightDockWidgetArea);
    m_dataDock = addDock(QStringLiteral("DataDock"), m_data, Qt::RightDockWidgetArea);
    m_wallDock = addDock(QStringLiteral("WallDock"), m_wall, Qt::BottomDockWidgetArea);

    connect(m_programme, &ProgrammePanel::currentNodeChanged, this, &MainWindow::onNodeSelected);
    connect(m_programme, &ProgrammePanel::nodeActivated, this, [this] { m_editor->focusText(); });
    connect(m_wall, &WallPanel::itemClicked, this,
            [this](LTextEffectNode *item) { selectNode(item); });
    connect(m_wall, &WallPanel::itemActivated, this, [this](LTextEffectNode *item) {
        selectNode(item);
        m_editor->focusText();
    });
    connect(m_wall, &WallPanel::ledGridChanged, this, [this](bool shows) {
        m_settings.setShowsLeds(shows);
        if (m_ledGrid != nullptr) {
            m_ledGrid->setChecked(shows);
        }
    });
    connectData();
}

void MainWindow::connectData()
{
    connect(m_data, &DataPanel::insertWanted, m_editor, &EditorPane::insertField);
    connect(m_data, &DataPanel::bindWanted, m_editor, &EditorPane::bindTable);
    connect(m_editor, &EditorPane::bindRefused, this, [this] {
        m_notices->post({QStringLiteral("bind"),
                         Notice::Information,
                         [] {
                             return tr("There is no table in this text yet: insert one with the "
                                       "table button, then bind it.");
                         },
                         {}});
    });
}

QVector<QDockWidget *> MainWindow::docks() const
{
    return {m_programmeDock, m_propertiesDock, m_layoutDock, m_dataDock, m_wallDock};
}

QDockWidget *MainWindow::addDock(const QString &name, QWidget *content, Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(this);
    dock->setObjectName(name);
    dock->setWidget(content);
    addDockWidget(area, dock);
    return dock;
}

void MainWindow::applyDefaultLayout()
{
    const QVector<QDockWidget *> all = docks();
    for (QDockWidget *dock : all) {
        dock->setFloating(false);
        dock->show();
    }
    addDockWidget(Qt::LeftDockWidgetArea, m_programmeDock);
    addDockWidget(Qt::RightDockWidgetArea, m_layoutDock);
    addDockWidget(Qt::RightDockWidgetArea, m_propertiesDock);
    addDockWidget(Qt::RightDockWidgetArea, m_dataDock);
    addDockWidget(Qt::BottomDockWidgetArea, m_wallDock);
    if (height() >= HeightForBoth) {
        splitDockWidget(m_layoutDock, m_propertiesDock, Qt::Vertical);
        tabifyDockWidget(m_propertiesDock, m_dataDock);
        resizeDocks({m_layoutDock, m_propertiesDock}, {height() / 4, height() / 2}, Qt::Vertical);
    } else {
        tabifyDockWidget(m_propertiesDock, m_layoutDock);
        tabifyDockWidget(m_layoutDock, m_dataDock);
    }
    m_propertiesDock->raise();
    resizeDocks({m_programmeDock, m_propertiesDock}, {ProgrammeWidth, PropertiesWidth},
                Qt::Horizontal);
    // On a large window a wall of a usual size is shown at twice its pixels.
    const int percent = height() >= HeightForBoth ? 36 : 30;
    resizeDocks({m_wallDock}, {height() * percent / 100}, Qt::Vertical);
}

void MainWindow::restoreLayout()
{
    const bool isRestored = restoreState(m_settings.state(), LayoutVersion);
    if (!isRestored) {
        applyDefaultLayout();
    }
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    // Docks take their sizes from the size that the window has when it is shown first.
    if (!m_isLayoutApplied) {
        m_isLayoutApplied = true;
        restoreLayout();
    }
}

void MainWindow::saveLayout()
{
    m_settings.setLayout(saveGeometry(), saveState(LayoutVersion));
}

void MainWindow::resetLayout()
{
    m_settings.forgetLayout();
    applyDefaultLayout();
}

/** What needs a description needs a tool tip too. */
static void nameButton(QWidget *parent, const char *button, const QString &name,
                       const QString &description)
{
    if (auto *found = parent->findChild<QAbstractButton *>(QLatin1String(button))) {
        found->setAccessibleName(name);
        found->setAccessibleDescription(description);
        found->setToolTip(description.isEmpty() ? QString() : name);
    }
}

void MainWindow::retranslateDocks()
{
    // The toolkit names these buttons when it makes them or a dock changes, and then no more.
    const QVector<QDockWidget *> all = docks();
    for (QDockWidget *dock : all) {
        nameButton(dock, "qt_dockwidget_closebutton", QDockWidget::tr("Close"),
                   QDockWidget::tr("Closes the dock widget"));
        nameButton(dock, "qt_dockwidget_floatbutton", QDockWidget::tr("Float"),
                   QDockWidget::tr("Undocks and re-attaches the dock widget"));
    }
    const auto bars = findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly);
    for (QTabBar *bar : bars) {
        nameButton(bar, "ScrollLeftButton", QTabBar::tr("Scroll Left"), QString());
        nameButton(bar, "ScrollRightButton", QTabBar::tr("Scroll Right"), QString());
    }
    m_programmeDock->setWindowTitle(tr("Programme"));
    m_propertiesDock->setWindowTitle(tr("Item Properties"));
    m_layoutDock->setWindowTitle(tr("Layout"));
    m_dataDock->setWindowTitle(tr("Data"));
    m_wallDock->setWindowTitle(tr("Wall"));
}

} // namespace workbench
