#include "conditioncells.h"
#include "configurationform.h"
#include "lconditionalstyling.h"
#include "trialpanel.h"
#include "uniquenames.h"
#include "visiblerows.h"

#include <QApplication>
#include <QTimer>
#include <QTreeWidget>
#include <QUuid>

using lctrlsex::ConditionItem;
using lctrlsex::ConditionRow;

namespace {

QString newId()
{
    return QUuid::createUuid().toString();
}

FieldConditions entryOf(const ConditionItem *item)
{
    FieldConditions entry;
    entry.id = newId();
    entry.name = item->text(lctrlsex::NameColumn);
    entry.conditions = lctrlsex::conditionsOf(item);
    entry.others = item->others;
    return entry;
}

/** Marks the condition that applies, and says of each why it does or does not. */
void markItem(ConditionItem *item, const lctrlsex::ConditionTrial &trial)
{
    for (int i = 0; i < trial.answers.size(); ++i) {
        ConditionItem *row = i == 0 ? item : lctrlsex::childOf(item, i - 1);
        row->answer = trial.answers.at(i);
        row->isWinner = i == trial.winner;
    }
}

} // namespace

void LConditionalStyling::setDynamicData(const DynamicData &edited)
{
    m_data = edited;
    loadTree();
}

DynamicData LConditionalStyling::dynamicData()
{
    rebuildData();
    return m_data;
}

void LConditionalStyling::setClipboardData(const DynamicData &edited)
{
    m_clipboardData = edited;
    m_clipboard->refresh();
}

void LConditionalStyling::setFields(const QStringList &fields)
{
    m_data.fields = fields;
    m_cells->setFields(fields);
}

void LConditionalStyling::setLiveValues(const QMap<QString, QString> &values)
{
    m_trial->setLiveValues(values);
}

void LConditionalStyling::loadTree()
{
    m_tree->clear();
    m_cells->setFields(m_data.fields);
    lctrlsex::UniqueNames names;
    for (const FieldConditions &entry : qAsConst(m_data.items)) {
        names.take(entry.name);
    }
    for (const FieldConditions &entry : qAsConst(m_data.items)) {
        appendItem(entry.name.isEmpty() ? names.makeUnique(tr("Configuration item")) : entry.name,
                   entry);
        itemAt(m_tree->topLevelItemCount() - 1)->formerId = entry.id;
    }
    updateAllSerialNumbers();
    m_visibleRows->update();
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
    stretchExpressions();
    scheduleTrial();
}

void LConditionalStyling::appendItem(const QString &name, const FieldConditions &entry)
{
    const QVector<ConditionRow> rows =
        lctrlsex::conditionRows(entry.conditions, QApplication::font().family());
    auto *item = new ConditionItem(name, rows.constFirst());
    item->others = entry.others;
    for (int i = 1; i < rows.size(); ++i) {
        item->addChild(new ConditionItem(rows.at(i)));
    }
    m_tree->addTopLevelItem(item);
    item->setExpanded(true);
}

void LConditionalStyling::rebuildData()
{
    m_data.items.clear();
    m_formerIds.clear();
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        const ConditionItem *item = itemAt(i);
        m_data.items.append(entryOf(item));
        if (!item->formerId.isEmpty()) {
            m_formerIds.insert(m_data.items.constLast().id, item->formerId);
        }
    }
}

void LConditionalStyling::showContextMenu(const QPoint &position)
{
    m_clipboard->showMenu(position);
}

void LConditionalStyling::onCopySelectAction()
{
    m_clipboard->copySelected();
}

void LConditionalStyling::onCopyAllAction()
{
    m_clipboard->copyAll();
}

void LConditionalStyling::onPasteAction()
{
    m_clipboard->paste();
}

void LConditionalStyling::onCoverAction()
{
    m_clipboard->cover();
}

void LConditionalStyling::onDeleteAllAction()
{
    m_clipboard->deleteAll();
}

void LConditionalStyling::copyRows(const QVector<int> &rows)
{
    rebuildData();
    m_clipboardData.items.clear();
    for (int row : rows) {
        m_clipboardData.items.append(entryOf(itemAt(row)));
    }
    // Covering takes these over, too: a first copy must not leave the other item without any.
    if (m_clipboardData.fields.isEmpty()) {
        m_clipboardData.fields = m_data.fields;
    }
}

bool LConditionalStyling::appendClipboard()
{
    lctrlsex::UniqueNames names;
    const int before = m_tree->topLevelItemCount();
    for (int i = 0; i < before; ++i) {
        names.take(itemAt(i)->text(lctrlsex::NameColumn));
    }
    for (const FieldConditions &entry : qAsConst(m_clipboardData.items)) {
        appendItem(names.makeUnique(entry.name.isEmpty() ? tr("Configuration item") : entry.name),
                   entry);
    }
    updateAllSerialNumbers();
    m_tree->setCurrentItem(m_tree->topLevelItem(before));
    m_tree->scrollToItem(m_tree->topLevelItem(before), QAbstractItemView::PositionAtTop);
    m_visibleRows->update();
    scheduleTrial();
    return true;
}

void LConditionalStyling::coverWithClipboard()
{
    m_data = m_clipboardData;
    loadTree();
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        itemAt(i)->formerId.clear(); // they are new here
    }
}

void LConditionalStyling::scheduleTrial()
{
    if (!m_isTrialScheduled) {
        m_isTrialScheduled = true;
        QTimer::singleShot(0, this, &LConditionalStyling::tryValue);
    }
}

void LConditionalStyling::tryValue()
{
    m_isTrialScheduled = false;
    lctrlsex::PatternBudget budget;
    const ConditionItem *current = currentItem();
    const QTreeWidgetItem *shown =
        current != nullptr && current->parent() != nullptr ? current->parent() : current;
    m_trial->setEnabled(m_tree->topLevelItemCount() > 0);
    if (shown == nullptr) {
        m_trial->showNothing(tr("Choose a configuration item to try a value"));
    }
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        ConditionItem *item = itemAt(i);
        const QString source = item->row->key;
        const QVector<SpanCondition> conditions = lctrlsex::conditionsOf(item);
        const auto trial = lctrlsex::tryConditions(
            conditions, lctrlsex::ConditionValue(m_trial->valueFor(source)), &budget);
        markItem(item, trial);
        if (item == shown) {
            m_trial->showTrial(item->text(lctrlsex::NameColumn), source, conditions, trial);
        }
    }
    m_tree->viewport()->update();
}
