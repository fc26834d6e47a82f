#include "autosave.h"
#include "lappconfig.h"
#include "lcontrollernode.h"
#include "livedata.h"
#include "mainwindow.h"
#include "noticebar.h"
#include "programmedocument.h"
#include "recentfiles.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>

namespace workbench {

namespace {

const QString FileSuffix = QStringLiteral("programme.json");
const QString OpenNotice = QStringLiteral("file");
constexpr int StatusTime = 5000;

QString demoFile()
{
    return LAppConfig::AppDir() + QStringLiteral("/examples/demo.programme.json");
}

/** Runs and deletes a dialog: the path that was chosen, empty when none was. */
QString chosenIn(const QPointer<QFileDialog> &dialog)
{
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    const QString chosen = dialog && isAccepted ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return chosen;
}

} // namespace

void MainWindow::newFile()
{
    if (mayLeave()) {
        m_document->newProgramme();
        m_notices->dismiss(OpenNotice);
    }
}

QString MainWindow::askForFile(bool toSave, const QString &start)
{
    const QPointer<QFileDialog> dialog(new QFileDialog(this));
    dialog->setObjectName(QStringLiteral("FileDialog"));
    dialog->setWindowTitle(toSave ? tr("Save Programme") : tr("Open Programme"));
    dialog->setAcceptMode(toSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setFileMode(toSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog->setNameFilters({tr("Programmes (*.%1)").arg(FileSuffix), tr("All files (*)")});
    if (toSave) {
        dialog->setDefaultSuffix(FileSuffix);
    }
    const QFileInfo info(start);
    if (!start.isEmpty()) {
        dialog->setDirectory(info.absolutePath());
        dialog->selectFile(info.fileName());
    }
    return chosenIn(dialog);
}

void MainWindow::chooseAndOpen()
{
    const QString known = m_document->fileName();
    const QString fileName =
        askForFile(false, known.isEmpty() ? m_recent->files().value(0) : known);
    if (!fileName.isEmpty()) {
        openAsked(fileName);
    }
}

void MainWindow::openAsked(const QString &fileName)
{
    if (mayLeave()) {
        openFile(fileName);
    }
}

bool MainWindow::openFile(const QString &fileName)
{
    return noteOutcome(fileName, m_document->open(fileName));
}

bool MainWindow::save()
{
    return m_document->fileName().isEmpty() ? saveAs() : saveUnder(m_document->fileName());
}

bool MainWindow::saveAs()
{
    QString start = m_document->fileName();
    if (start.isEmpty()) {
        const QString neighbour = m_recent->files().value(0);
        const QString folder =
            neighbour.isEmpty() ? QDir::homePath() : QFileInfo(neighbour).absolutePath();
        start = QStringLiteral("%1/%2.%3").arg(folder, m_document->displayName(), FileSuffix);
    }
    const QString fileName = askForFile(true, start);
    return !fileName.isEmpty() && saveUnder(fileName);
}

bool MainWindow::saveUnder(const QString &fileName)
{
    if (!noteOutcome(fileName, m_document->saveAs(fileName))) {
        return false;
    }
    statusBar()->showMessage(tr("Saved %1").arg(QDir::toNativeSeparators(fileName)), StatusTime);
    return true;
}

bool MainWindow::mayLeave()
{
    if (!m_document->isModified()) {
        return true;
    }
    const QPointer<QMessageBox> box(new QMessageBox(this));
    box->setObjectName(QStringLiteral("UnsavedBox"));
    box->setIcon(QMessageBox::Warning);
    box->setWindowTitle(tr("Unsaved Changes"));
    box->setTextFormat(Qt::PlainText);
    box->setText(tr("Save the changes to “%1”?").arg(m_document->displayName()));
    box->setInformativeText(tr("They are lost if you do not."));
    QPushButton *saveButton = box->addButton(tr("&Save"), QMessageBox::AcceptRole);
    saveButton->setObjectName(QStringLiteral("SaveButton"));
    QPushButton *discard = box->addButton(tr("&Don't Save"), QMessageBox::DestructiveRole);
    discard->setObjectName(QStringLiteral("DiscardButton"));
    QPushButton *cancel = box->addButton(tr("&Cancel"), QMessageBox::RejectRole);
    cancel->setObjectName(QStringLiteral("CancelButton"));
    box->setDefaultButton(saveButton);
    box->setEscapeButton(cancel);
    box->exec();
    if (!box) {
        return false;
    }
    const QAbstractButton *pressed = box->clickedButton();
    const bool wantsToSave = pressed == saveButton;
    const bool wantsToDiscard = pressed == discard;
    delete box;
    return wantsToSave ? save() : wantsToDiscard;
}

void MainWindow::openFirst(const QString &fileName)
{
    const bool isFirstRun = !m_settings.hasRunBefore();
    m_settings.setHasRunBefore();
    if (!fileName.isEmpty()) {
        openFile(fileName);
        return;
    }
    const QString last = m_settings.lastFile();
    if (!last.isEmpty()) {
        openFile(last);
    } else if (isFirstRun && QFileInfo::exists(demoFile())) {
        const ProgrammeError error = m_document->openCopy(demoFile());
        if (error.isSet()) {
            noteError(demoFile(), error);
        }
    }
}

bool MainWindow::noteOutcome(const QString &fileName, const ProgrammeError &error)
{
    if (error.isSet()) {
        noteError(fileName, error);
        return false;
    }
    m_notices->dismiss(OpenNotice);
    m_recent->add(m_document->fileName());
    m_settings.setLastFile(m_document->fileName());
    return true;
}

void MainWindow::noteError(const QString &fileName, const ProgrammeError &error)
{
    m_notices->post({OpenNotice,
                     Notice::Error,
                     [fileName, error] {
                         const QString file = QDir::toNativeSeparators(fileName);
                         const QString place = error.placeText();
                         const QString fault =
                             place.isEmpty() ? tr("%1: %2").arg(file, error.reason)
                                             : tr("%1: %2: %3").arg(file, place, error.reason);
                         return error.remedy.isEmpty() ? fault
                                                       : tr("%1; %2").arg(fault, error.remedy);
                     },
                     {}});
}

void MainWindow::exportPages()
{
    const QPointer<QFileDialog> dialog(new QFileDialog(this));
    dialog->setObjectName(QStringLiteral("ExportDialog"));
    dialog->setWindowTitle(tr("Export Pages to a Folder"));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    if (!m_settings.exportFolder().isEmpty()) {
        dialog->setDirectory(m_settings.exportFolder());
    }
    const QString folder = chosenIn(dialog);
    if (folder.isEmpty()) {
        return;
    }
    m_settings.setExportFolder(folder);
    auto *work = new PageExport(m_document->controller(), m_live->snapshot(), folder, this);
    connect(work, &PageExport::finished, this, [this, work, folder](const auto &result) {
        tellExport(result, folder);
        work->deleteLater();
    });
    work->start();
}

void MainWindow::tellExport(const PageExport::Result &result, const QString &folder)
{
    const bool isWhole = !result.isCancelled && result.problems.isEmpty();
    const auto text = [result, folder] {
        const QString place = QDir::toNativeSeparators(folder);
        QString told =
            result.isCancelled
                ? tr("The export was cancelled; %n page(s) are in %1.", nullptr, result.pages)
                      .arg(place)
                : tr("%n page(s) were written to %1.", nullptr, result.pages).arg(place);
        for (const QString &problem : result.problems.mid(0, 5)) {
            told += QLatin1Char('\n') + problem;
        }
        return told;
    };
    m_notices->post(
        {QStringLiteral("export"), isWhole ? Notice::Information : Notice::Warning, text, {}});
}

} // namespace workbench
