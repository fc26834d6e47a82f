#include "conditionitem.h"
#include "datasourceconfigmanager.h"
#include "lconditionalstyling.h"
#include "messagebox.h"
#include "uniquenames.h"

#include <QPointer>
#include <QTreeWidget>

using lctrlsex::ConditionItem;

/** The name that was accepted last, by any row of any dialog. */
static QString &lastAcceptedName()
{
    static QString name;
    return name;
}

void LConditionalStyling::onItemDoubleClicked(QTreeWidgetItem *item, int column)
{
    if (column == lctrlsex::NameColumn && item->parent() == nullptr) {
        m_tree->editItem(item, column);
    }
}

void LConditionalStyling::editName(ConditionItem *row)
{
    QTreeWidgetItem *item = row->parent() != nullptr ? row->parent() : row;
    m_tree->scrollToItem(item);
    m_tree->editItem(item, lctrlsex::NameColumn);
}

void LConditionalStyling::onItemChanged(QTreeWidgetItem *item, int column)
{
    if (column != lctrlsex::NameColumn || item->parent() != nullptr) {
        return;
    }
    const QString name = item->text(column);
    QString &formerName = static_cast<ConditionItem *>(item)->formerName;
    if (name.trimmed().isEmpty()) {
        item->setText(column, formerName); // nobody could choose it without a name
        return;
    }
    const bool isIllegal = DataSourceConfigManager::ContainsIllegalChars(name);
    if (!isDuplicate(item) && !isIllegal) {
        lastAcceptedName() = name;
        formerName = name;
        m_clipboard->refresh();
        scheduleTrial();
        return;
    }
    const QPointer<LConditionalStyling> guard = this;
    const int index = m_tree->indexOfTopLevelItem(item);
    if (isDuplicate(item)) {
        lctrlsex::showMessage(this, QMessageBox::Warning, tr("Duplicate Name"),
                              tr("Name must be unique, please enter a different name!"));
    } else {
        lctrlsex::showMessage(this, QMessageBox::Warning, tr("Invalid Name"),
                              tr("Name contains illegal characters."));
    }
    if (guard && m_tree->topLevelItem(index) == item) {
        restoreName(item);
        m_clipboard->refresh();
    }
}

// Kept on purpose because it always was so: the name comes from whichever row was renamed last. One
// that a row has meanwhile would be refused again, and again after that, for ever.
void LConditionalStyling::restoreName(QTreeWidgetItem *item)
{
    const QSignalBlocker blocker(m_tree);
    item->setText(lctrlsex::NameColumn, lastAcceptedName());
    if (lastAcceptedName().isEmpty() || isDuplicate(item)) {
        item->setText(lctrlsex::NameColumn, uniqueName(tr("Configuration item"), item));
    }
    static_cast<ConditionItem *>(item)->formerName = item->text(lctrlsex::NameColumn);
    m_tree->viewport()->update();
}

bool LConditionalStyling::isDuplicate(const QTreeWidgetItem *item) const
{
    const QString name = item->text(lctrlsex::NameColumn);
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *other = m_tree->topLevelItem(i);
        if (other != item && other->text(lctrlsex::NameColumn) == name) {
            return true;
        }
    }
    return false;
}

QString LConditionalStyling::uniqueName(const QString &base, const QTreeWidgetItem *except) const
{
    lctrlsex::UniqueNames names;
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        if (m_tree->topLevelItem(i) != except) {
            names.take(m_tree->topLevelItem(i)->text(lctrlsex::NameColumn));
        }
    }
    return names.makeUnique(base);
}
