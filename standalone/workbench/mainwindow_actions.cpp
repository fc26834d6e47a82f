#include "mainwindow.h"
#include "programmedocument.h"
#include "recentfiles.h"
#include "structureactions.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QUndoStack>

namespace workbench {

namespace {

/** A text of the user's in a menu, where "&" would mark the next letter. */
QString inMenu(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

bool hasSlot(const QObject *object, const char *slot)
{
    return object != nullptr && object->metaObject()->indexOfMethod(slot) >= 0;
}

} // namespace

void MainWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    buildTextMenu();
    buildViewMenu();
    auto *help = nameMenu(menuBar()->addMenu(QString()), QStringLiteral("HelpMenu"),
                          [] { return tr("&Help"); });
    addAction(
        help, QStringLiteral("About"), [] { return tr("&About Workbench"); },
        [this] { showAbout(); })
        ->setMenuRole(QAction::AboutRole);
}

QMenu *MainWindow::nameMenu(QMenu *menu, const QString &name, std::function<QString()> title)
{
    menu->setObjectName(name);
    m_texts.append({menu->menuAction(), std::move(title)});
    return menu;
}

QAction *MainWindow::addAction(QMenu *menu, const QString &name, std::function<QString()> text,
                               std::function<void()> run)
{
    auto *action = new QAction(this);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, std::move(run));
    m_texts.append({action, std::move(text)});
    menu->addAction(action);
    return action;
}

void MainWindow::buildFileMenu()
{
    auto *menu = nameMenu(menuBar()->addMenu(QString()), QStringLiteral("FileMenu"),
                          [] { return tr("&File"); });
    const auto add = [this, menu](const QString &name, std::function<QString()> text,
                                  std::function<void()> run, const QKeySequence &keys,
                                  const char *icon) {
        QAction *action = addAction(menu, name, std::move(text), std::move(run));
        action->setShortcut(keys);
        action->setIcon(QIcon::fromTheme(QLatin1String(icon)));
    };
    add(
        QStringLiteral("New"), [] { return tr("&New"); }, [this] { newFile(); }, QKeySequence::New,
        "document-new");
    add(
        QStringLiteral("Open"), [] { return tr("&Open…"); }, [this] { chooseAndOpen(); },
        QKeySequence::Open, "document-open");
    m_recentMenu = nameMenu(menu->addMenu(QString()), QStringLiteral("RecentMenu"),
                            [] { return tr("Open &Recent"); });
    connect(m_recentMenu, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
    menu->addSeparator();
    add(
        QStringLiteral("Save"), [] { return tr("&Save"); }, [this] { save(); }, QKeySequence::Save,
        "document-save");
    add(
        QStringLiteral("SaveAs"), [] { return tr("Save &As…"); }, [this] { saveAs(); },
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_S), "document-save-as");
    menu->addSeparator();
    add(
        QStringLiteral("ExportPages"), [] { return tr("&Export Pages…"); },
        [this] { exportPages(); }, QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_E),
        "document-export");
    menu->addSeparator();
    add(
        QStringLiteral("Quit"), [] { return tr("&Quit"); }, [this] { close(); },
        QKeySequence(Qt::CTRL + Qt::Key_Q), "application-exit");
}

void MainWindow::buildEditMenu()
{
    auto *menu = nameMenu(menuBar()->addMenu(QString()), QStringLiteral("EditMenu"),
                          [] { return tr("&Edit"); });
    const auto undoText = [this] {
        const QString step = m_document->history()->undoText();
        return step.isEmpty() ? tr("&Undo") : tr("&Undo: %1").arg(inMenu(step));
    };
    const auto redoText = [this] {
        const QString step = m_document->history()->redoText();
        return step.isEmpty() ? tr("&Redo") : tr("&Redo: %1").arg(inMenu(step));
    };
    m_undo = addAction(menu, QStringLiteral("Undo"), undoText, [this] { m_document->undo(); });
    m_undo->setShortcut(QKeySequence::Undo);
    m_undo->setIcon(QIcon::fromTheme(QStringLiteral("edit-undo")));
    m_redo = addAction(menu, QStringLiteral("Redo"), redoText, [this] { m_document->redo(); });
    m_redo->setShortcuts(
        {QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Z), QKeySequence(Qt::CTRL + Qt::Key_Y)});
    m_redo->setIcon(QIcon::fromTheme(QStringLiteral("edit-redo")));
    menu->addSeparator();
    m_cut = addAction(
        menu, QStringLiteral("Cut"), [] { return tr("Cu&t"); }, [this] { forwardToFocus("cut"); });
    m_cut->setShortcut(QKeySequence::Cut);
    m_copy = addAction(
        menu, QStringLiteral("Copy"), [] { return tr("&Copy"); },
        [this] { forwardToFocus("copy"); });
    m_copy->setShortcut(QKeySequence::Copy);
    m_paste = addAction(
        menu, QStringLiteral("Paste"), [] { return tr("&Paste"); },
        [this] { forwardToFocus("paste"); });
    m_paste->setShortcut(QKeySequence::Paste);
    connect(qApp, &QApplication::focusChanged, this, &MainWindow::updateClipboardActions);
    menu->addSeparator();
    for (QAction *action : m_structure->inOrder()) {
        if (action != nullptr) {
            menu->addAction(action);
        } else {
            menu->addSeparator();
        }
    }
    updateClipboardActions();
}

void MainWindow::retranslateActions()
{
    for (const TextOfAction &entry : qAsConst(m_texts)) {
        entry.action->setText(entry.text());
    }
}

void MainWindow::updateHistoryActions()
{
    m_undo->setEnabled(m_document->history()->canUndo());
    m_redo->setEnabled(m_document->history()->canRedo());
    for (const TextOfAction &entry : qAsConst(m_texts)) {
        if (entry.action == m_undo || entry.action == m_redo) {
            entry.action->setText(entry.text());
        }
    }
}

void MainWindow::updateClipboardActions()
{
    const QWidget *focused = QApplication::focusWidget();
    // Opening a menu takes the focus for a moment; the widget that had it is still the one meant.
    if (qobject_cast<const QMenu *>(focused) != nullptr ||
        qobject_cast<const QMenuBar *>(focused) != nullptr) {
        return;
    }
    m_cut->setEnabled(hasSlot(focused, "cut()"));
    m_copy->setEnabled(hasSlot(focused, "copy()"));
    m_paste->setEnabled(hasSlot(focused, "paste()"));
}

void MainWindow::forwardToFocus(const char *slot)
{
    QWidget *focused = QApplication::focusWidget();
    if (hasSlot(focused, QByteArray(slot).append("()").constData())) {
        QMetaObject::invokeMethod(focused, slot);
    }
}

void MainWindow::fillRecentMenu()
{
    m_recentMenu->clear();
    const QStringList files = m_recent->files();
    for (const QString &file : files) {
        QAction *action = m_recentMenu->addAction(inMenu(QDir::toNativeSeparators(file)));
        connect(action, &QAction::triggered, this, [this, file] { openAsked(file); });
    }
    if (files.isEmpty()) {
        m_recentMenu->addAction(tr("No programme was opened yet"))->setEnabled(false);
        return;
    }
    m_recentMenu->addSeparator();
    connect(m_recentMenu->addAction(tr("&Clear List")), &QAction::triggered, m_recent,
            &RecentFiles::clear);
}

void MainWindow::showAbout()
{
    auto *box = new QMessageBox(this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setObjectName(QStringLiteral("AboutBox"));
    box->setWindowTitle(tr("About Workbench"));
    box->setTextFormat(Qt::PlainText);
    box->setIconPixmap(QApplication::windowIcon().pixmap(64, 64));
    box->setText(tr("Workbench %1").arg(QStringLiteral(LCTRLSEX_VERSION)));
    box->setInformativeText(tr("Edits programmes for LED and LCD display screens.\n\n"
                               "Free software under the MIT licence."));
    box->setStandardButtons(QMessageBox::Ok);
    box->open();
}

} // namespace workbench
