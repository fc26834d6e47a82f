#include "autosave.h"
#include "mainwindow.h"
#include "noticebar.h"
#include "programmedocument.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace workbench {

namespace {

const QString RecoveryNotice = QStringLiteral("recovery");

QString textOf(const Recovery &recovery)
{
    if (recovery.state == Recovery::Broken) {
        return MainWindow::tr("A copy saved automatically is damaged: %1; it was kept as %2.")
            .arg(recovery.reason, QDir::toNativeSeparators(recovery.journal));
    }
    const QString when = QLocale().toString(recovery.saved.toLocalTime(), QLocale::ShortFormat);
    if (recovery.original.isEmpty()) {
        return MainWindow::tr("A programme that you never saved was kept automatically on %1.")
            .arg(when);
    }
    const QString found = MainWindow::tr("A copy of %1, saved automatically on %2, was found.")
                              .arg(QDir::toNativeSeparators(recovery.original), when);
    return recovery.state == Recovery::OriginalChanged
               ? MainWindow::tr("%1 The file was changed since.").arg(found)
               : found;
}

} // namespace

void MainWindow::offerNextRecovery()
{
    if (!m_recoveries.isEmpty()) {
        offerRecovery(m_recoveries.takeFirst());
    }
}

void MainWindow::offerRecovery(const Recovery &recovery)
{
    const auto next = [this] {
        offerNextRecovery();
    };
    Notice notice{RecoveryNotice,
                  recovery.state == Recovery::Broken ? Notice::Warning : Notice::Information,
                  [recovery] { return textOf(recovery); },
                  {},
                  next};
    if (recovery.state != Recovery::Broken) {
        notice.buttons.append({QStringLiteral("RestoreButton"), [] { return tr("&Restore"); },
                               [this, recovery] {
                                   restore(recovery);
                               }});
        if (QFileInfo::exists(recovery.original)) {
            notice.buttons.append({QStringLiteral("OpenSavedButton"),
                                   [] { return tr("Open Saved &File"); },
                                   [this, recovery] {
                                       openSavedInstead(recovery);
                                   }});
        }
        notice.buttons.append(
            {QStringLiteral("KeepButton"), [] { return tr("&Keep for Later"); }, next});
    }
    m_notices->post(notice);
}

void MainWindow::restore(const Recovery &recovery)
{
    if (!mayLeave()) {
        // Nothing is decided yet: the notice comes back as it was.
        offerRecovery(recovery);
        return;
    }
    const QByteArray programme = recoveredProgramme(recovery);
    const ProgrammeError error = m_document->restore(programme, recovery.original);
    if (error.isSet()) {
        noteError(recovery.journal, error);
    } else if (!m_autosave->adopt(recovery.journal)) {
        ProgrammeError taken;
        taken.reason = tr("another workbench has restored this copy too");
        taken.remedy = tr("save one of the two under another name");
        noteError(recovery.journal, taken);
    }
    offerNextRecovery();
}

void MainWindow::openSavedInstead(const Recovery &recovery)
{
    if (m_document->fileName() != recovery.original &&
        (!mayLeave() || !openFile(recovery.original))) {
        offerRecovery(recovery);
        return;
    }
    // With the file in view the user can tell whether the copy is still of use.
    const auto next = [this] {
        offerNextRecovery();
    };
    m_notices->post({RecoveryNotice,
                     Notice::Information,
                     [recovery] {
                         return tr("This is %1 as it was saved. Is the copy saved automatically "
                                   "still needed?")
                             .arg(QDir::toNativeSeparators(recovery.original));
                     },
                     {{QStringLiteral("DeleteCopyButton"), [] { return tr("&Delete the Copy"); },
                       [recovery, next] {
                           discardRecovery(recovery);
                           next();
                       }},
                      {QStringLiteral("KeepButton"), [] { return tr("&Keep for Later"); }, next}},
                     next});
}

} // namespace workbench
