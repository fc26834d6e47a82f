#include "datasourceconfigmanager.h"
#include "lappconfig.h"
#include "lconditionalstyling.h"
#include "lmodbusparameteroperation.h"
#include "ltext_client_p.h"
#include "messagebox.h"
#include "table/singlefields.h"

#include <QCryptographicHash>
#include <QDir>
#include <QPushButton>
#include <QSaveFile>

namespace Lum {
namespace LTextPlugin {

namespace {

/** Gives what was there before a dialog the identifiers back under which texts refer to it. */
template <typename Items>
void keepIds(Items *items, const QHash<QString, QString> &formerIds)
{
    for (auto &item : *items) {
        item.id = formerIds.value(item.id, item.id);
    }
}

/** Where the unreadable @p records are kept when new ones replace them. */
QString copyPath(const QString &records)
{
    const QByteArray sum =
        QCryptographicHash::hash(records.toUtf8(), QCryptographicHash::Sha1).toHex();
    constexpr int length = 12;
    return LAppConfig::AppDataDir() + QStringLiteral("/unreadable/") +
           QString::fromLatin1(sum.left(length)) + QStringLiteral(".json");
}

bool writeCopy(const QString &path, const QString &records)
{
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    const QByteArray bytes = records.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

} // namespace

// What cannot be read is not shown by the dialog either, and lost once the dialog is accepted.
bool LTextClient::KeepUnreadable(const lctrlsex::RecordsFault &fault, const QString &records,
                                 const QString &title)
{
    if (!fault) {
        return true;
    }
    const QString path = copyPath(records);
    QWidget *const window = m_form->TextAttributesBg->window();
    const QPointer<LTextClient> self(this);
    const bool isKept = writeCopy(path, records);
    const QString text =
        tr("What this item stores cannot be read (byte %1: %2). It stays as it is until you accept "
           "the dialog with changes.")
            .arg(qMax(0, fault.offset)) // where no byte is to blame, the whole text is
            .arg(fault.reason);
    lctrlsex::showMessage(
        window, QMessageBox::Warning, title,
        text + QLatin1Char('\n') +
            (isKept ? tr("A copy is kept in %1").arg(QDir::toNativeSeparators(path))
                    : tr("No copy could be written to %1: free some space or allow writing there, "
                         "then try again.")
                          .arg(QDir::toNativeSeparators(path))));
    return self && isKept;
}

/** Runs @p dialog, which goes with its node, and with the window of the panel. */
bool LTextClient::RunDialog(QDialog *dialog)
{
    const Bound bound(this);
    const auto *const manager = DataSourceConfigManager::instance();
    connect(m_node, SIGNAL(destroyed()), dialog, SLOT(reject()));
    connect(manager, SIGNAL(ConfigChanged()), this, SLOT(UpdateDialogs()), Qt::UniqueConnection);
    connect(manager, SIGNAL(SourceChanged()), this, SLOT(UpdateDialogs()), Qt::UniqueConnection);
    UpdateDialogs();
    m_areDialogsAbandoned = false;
    const QPointer<LTextClient> self(this);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!self) {
        return false;
    }
    disconnect(manager, nullptr, this, SLOT(UpdateDialogs()));
    return isAccepted && bound && !m_areDialogsAbandoned;
}

// Not deleted: this may be called from within one of them.
void LTextClient::AbandonDialogs()
{
    m_areDialogsAbandoned = true;
    for (QDialog *dialog : {static_cast<QDialog *>(m_stylesDialog.data()),
                            static_cast<QDialog *>(m_operationsDialog.data())}) {
        if (dialog) {
            dialog->reject();
        }
    }
}

void LTextClient::UpdateDialogs()
{
    const DataSourceConfigManager *const manager = DataSourceConfigManager::instance();
    const QMap<QString, QString> fields =
        FieldsOnOffer(manager->GetConfig(), manager->GetDynamicData());
    const QString bound = BoundField();
    if (m_stylesDialog) {
        const QMap<QString, QString> values = lctrlsex::singleFields(fields);
        m_stylesDialog->setFields(lctrlsex::fieldsInOrder(values, bound));
        m_stylesDialog->setLiveValues(values);
    }
    if (m_operationsDialog) {
        m_operationsDialog->setVariables(VariablesOf(fields, bound));
    }
}

void LTextClient::OnConditionalStylesClicked()
{
    const Bound bound(this);
    LoadRecords();
    DynamicData before;
    if (bound) {
        PrepareDynamicDataWithPrefix(before);
    }
    if (!bound || m_stylesDialog ||
        !KeepUnreadable(m_stylesFault, m_stylesText, tr("Conditional Style Settings")) || !bound) {
        return;
    }
    DataSourceConfigManager *const manager = DataSourceConfigManager::instance();
    const QPointer<LConditionalStyling> dialog =
        new LConditionalStyling(m_form->ConditionalStylesBtn);
    dialog->setDynamicData(before);
    dialog->setClipboardData(manager->GetConditionalStylingData());
    m_stylesDialog = dialog;
    const bool isAccepted = RunDialog(dialog);
    if (!dialog) {
        return;
    }
    DynamicData result = dialog->dynamicData();
    keepIds(&result.items, dialog->formerIds());
    const DynamicData clipboard = dialog->clipboardData();
    const bool hasClipboard = dialog->hasClipboardData();
    delete dialog;
    if (isAccepted && bound && !(result.items == before.items)) {
        AcceptConditionalStyles(result);
    }
    if (hasClipboard) {
        manager->SetConditionalStylingData(clipboard);
    }
}

void LTextClient::OnSetOperationClicked()
{
    const Bound bound(this);
    LoadRecords();
    CalculationDynamicData before;
    if (bound) {
        PrepareDynamicDataCal(before);
    }
    if (!bound || m_operationsDialog ||
        !KeepUnreadable(m_calculationsFault, m_calculationsText, tr("Operation Settings")) ||
        !bound) {
        return;
    }
    DataSourceConfigManager *const manager = DataSourceConfigManager::instance();
    const QPointer<LModbusParameterOperation> dialog =
        new LModbusParameterOperation(m_form->setOperation);
    dialog->setDynamicData(before);
    dialog->setClipboardData(manager->GetOperationsData());
    m_operationsDialog = dialog;
    const bool isAccepted = RunDialog(dialog);
    if (!dialog) {
        return;
    }
    CalculationDynamicData result = dialog->dynamicData();
    keepIds(&result.conditions, dialog->formerIds());
    const CalculationDynamicData clipboard = dialog->clipboardData();
    const bool hasClipboard = dialog->hasClipboardData();
    delete dialog;
    if (isAccepted && bound && !(result.conditions == before.conditions)) {
        AcceptOperations(result);
    }
    if (hasClipboard && !(clipboard.conditions == manager->GetOperationsData().conditions)) {
        manager->SetOperationsData(clipboard);
        emit manager->SourceChanged();
    }
}

} // namespace LTextPlugin
} // namespace Lum
