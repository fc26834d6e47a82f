#include "mainwindow.h"

#include "autosave.h"
#include "editorpane.h"
#include "itempages.h"
#include "lappconfig.h"
#include "layoutpanel.h"
#include "lcontrollernode.h"
#include "livedata.h"
#include "ltexteffectnode.h"
#include "noticebar.h"
#include "programmedocument.h"
#include "programmepanel.h"
#include "programmetreemodel.h"
#include "recentfiles.h"
#include "structureactions.h"
#include "thumbnails.h"
#include "wallpanel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QScrollArea>
#include <QStatusBar>
#include <QUndoStack>
#include <QVBoxLayout>

namespace workbench {

MainWindow::MainWindow(const LoadedPlugin &plugin, const FontFolder::Result &fonts, QWidget *parent)
    : QMainWindow(parent)
    , m_document(new ProgrammeDocument(this))
    , m_live(new LiveData(m_document, this))
    , m_pages(new ItemPages(m_document, m_live, this))
    , m_autosave(new Autosave(m_document, this))
    , m_recent(new RecentFiles(this))
    , m_model(new ProgrammeTreeModel(m_document, this))
    , m_structure(new StructureActions(m_document, this))
    , m_thumbnails(new Thumbnails(m_document, m_pages, m_model, this))
    , m_fonts(fonts)
{
    setObjectName(QStringLiteral("WorkbenchWindow"));
    LAppConfig::instance()->SetMainWindow(this);
    buildCentre(plugin);
    buildDocks();
    buildMenus();
    buildStatusBar();
    connectDocument();
    retranslate();
    selectFirstItem();
    m_thumbnails->updateAll();
}

MainWindow::~MainWindow()
{
    // What the parts say while they let go concerns nobody any more.
    for (QObject *part :
         QVector<QObject *>{m_document, m_document->history(), m_model, m_programme, m_wall}) {
        part->disconnect(this);
    }
    // Children die in the order in which they were made, the document first; so it is done here:
    // first what the plug-in's widgets are in, then all that knows nodes, the document last.
    delete m_editor;
    const QVector<QDockWidget *> all = docks();
    for (QDockWidget *dock : all) {
        delete dock;
    }
    for (QObject *part : QVector<QObject *>{m_thumbnails, m_structure, m_model, m_autosave, m_pages,
                                            m_live, m_document}) {
        delete part;
    }
}

void MainWindow::buildCentre(const LoadedPlugin &plugin)
{
    auto *centre = new QWidget(this);
    auto *column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_notices = new NoticeArea(centre);
    m_editor = new EditorPane(m_document, m_pages, plugin, centre);
    column->addWidget(m_notices);
    column->addWidget(m_editor, 1);
    setCentralWidget(centre);
    connect(m_editor, &EditorPane::addItemWanted, this, &MainWindow::addItemHere);
    connect(m_editor, &EditorPane::leaveWanted, this, [this] { m_programme->focusTree(); });
}

void MainWindow::buildStatusBar()
{
    const auto add = [this](const QString &name) {
        auto *label = new QLabel(this);
        label->setObjectName(name);
        label->setContentsMargins(8, 0, 8, 0);
        statusBar()->addPermanentWidget(label);
        return label;
    };
    m_statusFonts = add(QStringLiteral("StatusFonts"));
    m_statusSize = add(QStringLiteral("StatusSize"));
    m_statusPage = add(QStringLiteral("StatusPage"));
    m_statusZoom = add(QStringLiteral("StatusZoom"));
    connect(m_wall, &WallPanel::statusChanged, this, &MainWindow::updateStatus);
}

void MainWindow::connectDocument()
{
    connect(m_document, &ProgrammeDocument::modifiedChanged, this, &QWidget::setWindowModified);
    connect(m_document, &ProgrammeDocument::fileNameChanged, this, &MainWindow::updateTitle);
    connect(m_document, &ProgrammeDocument::contentsChanged, this, &MainWindow::updateTextActions);
    connect(m_document, &ProgrammeDocument::aboutToReplace, this, &MainWindow::letGoOfNodes);
    connect(m_document, &ProgrammeDocument::replaced, this, [this] {
        updateTitle();
        selectFirstItem();
    });
    connect(m_document, &ProgrammeDocument::nodeTaken, this, &MainWindow::letGoOf);
    connect(m_document, &ProgrammeDocument::reloadItem, this, [this](LTextEffectNode *node) {
        if (node != nullptr && node == m_editor->node()) {
            m_editor->rebind();
        }
    });
    connect(m_document, &ProgrammeDocument::revealNode, this, &MainWindow::selectNode);
    QUndoStack *history = m_document->history();
    for (const auto signal : {&QUndoStack::undoTextChanged, &QUndoStack::redoTextChanged}) {
        connect(history, signal, this, &MainWindow::updateHistoryActions);
    }
    for (const auto signal : {&QUndoStack::canUndoChanged, &QUndoStack::canRedoChanged}) {
        connect(history, signal, this, &MainWindow::updateHistoryActions);
    }
    connect(
        m_model, &QAbstractItemModel::rowsMoved, this,
        [this] { onNodeSelected(m_programme->currentNode()); }, Qt::QueuedConnection);
    connect(m_structure, &StructureActions::nodeMade, this, &MainWindow::selectNode);
    connect(m_structure, &StructureActions::aboutToRemove, this, &MainWindow::letGoOf);
    connect(m_autosave, &Autosave::failed, this, [this](const QString &reason) {
        m_notices->post({QStringLiteral("autosave"),
                         Notice::Warning,
                         [reason] {
                             return tr("Unsaved changes cannot be kept safe: %1; save the "
                                       "programme to a folder that you may write to.")
                                 .arg(reason);
                         },
                         {}});
    });
}

void MainWindow::start(const QString &fileName)
{
    openFirst(fileName);
    QStringList files;
    if (!fileName.isEmpty()) {
        files.append(fileName);
    }
    m_recoveries = findJournals(m_recent->folders(), files);
    offerNextRecovery();
}

void MainWindow::updateTitle()
{
    setWindowTitle(tr("%1[*] – Workbench").arg(m_document->displayName()));
    setWindowFilePath(m_document->fileName());
    setWindowModified(m_document->isModified());
}

void MainWindow::updateStatus()
{
    const LTextEffectNode *item = m_editor->node();
    const QSize size = item != nullptr ? item->Size() : QSize();
    m_statusSize->setText(size.isValid() ? tr("%1 × %2 pixels").arg(size.width()).arg(size.height())
                                         : QString());
    m_statusPage->setText(m_wall->pageText());
    m_statusZoom->setText(item != nullptr ? tr("Wall: %1").arg(m_wall->zoomText()) : QString());
    QString fonts;
    if (!m_fonts.error.isEmpty()) {
        fonts = tr("Fonts: %1").arg(m_fonts.error);
    } else if (m_fonts.files == 0) {
        fonts = tr("No fonts to choose from: put font files into %1")
                    .arg(QDir::toNativeSeparators(FontFolder::path()));
    }
    m_statusFonts->setText(fonts);
    m_statusFonts->setVisible(!fonts.isEmpty());
    for (QLabel *label : {m_statusSize, m_statusPage, m_statusZoom}) {
        label->setVisible(!label->text().isEmpty());
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!mayLeave()) {
        event->ignore();
        return;
    }
    // The user has decided: what is still unsaved is not wanted.
    m_autosave->discard();
    saveLayout();
    event->accept();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::PaletteChange) {
        m_structure->updateIcons();
        updatePlayIcons();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::retranslate()
{
    m_structure->retranslate();
    retranslateActions();
    retranslateDocks();
    updateTitle();
    updateHistoryActions();
    updateStatus();
}

} // namespace workbench
