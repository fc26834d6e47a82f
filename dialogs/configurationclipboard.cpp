#include "configurationclipboard.h"

#include "messagebox.h"

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QTreeWidget>

#include <algorithm>

namespace lctrlsex {

ConfigurationClipboard::ConfigurationClipboard(QTreeWidget *tree, ConfigurationItems *items)
    : QObject(tree)
    , m_tree(tree)
    , m_items(items)
{
    const std::array<QString, ActionCount> texts = {tr("Copy"), tr("Copy All"), tr("Paste"),
                                                    tr("Cover"), tr("Delete All")};
    const std::array<QKeySequence, ActionCount> keys = {
        QKeySequence::Copy, Qt::CTRL + Qt::SHIFT + Qt::Key_C, QKeySequence::Paste,
        Qt::CTRL + Qt::SHIFT + Qt::Key_V, Qt::CTRL + Qt::SHIFT + Qt::Key_Delete};
    for (int i = 0; i < ActionCount; ++i) {
        m_actions.at(i) = new QAction(texts.at(i), this);
        m_actions.at(i)->setShortcut(keys.at(i));
        // In an edit of a cell the same keys mean its text.
        m_actions.at(i)->setShortcutContext(Qt::WidgetShortcut);
        m_tree->addAction(m_actions.at(i));
    }
    connect(tree, &QTreeWidget::itemSelectionChanged, this, &ConfigurationClipboard::refresh);
    refresh();
}

void ConfigurationClipboard::connectActions(QObject *receiver,
                                            const std::array<const char *, ActionCount> &slots_)
{
    for (int i = 0; i < ActionCount; ++i) {
        connect(m_actions.at(i), SIGNAL(triggered()), receiver, slots_.at(i));
    }
}

QVector<int> ConfigurationClipboard::selectedItems() const
{
    QVector<int> rows;
    const QList<QTreeWidgetItem *> selected = m_tree->selectedItems();
    for (QTreeWidgetItem *row : selected) {
        rows.append(m_tree->indexOfTopLevelItem(row->parent() != nullptr ? row->parent() : row));
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void ConfigurationClipboard::copySelected()
{
    const QVector<int> rows = selectedItems();
    if (rows.isEmpty()) {
        showMessage(m_tree->window(), QMessageBox::Information, tr("Copy"),
                    tr("Please select at least one configuration item to copy"));
        return;
    }
    copy(rows);
}

void ConfigurationClipboard::copyAll()
{
    QVector<int> rows(m_tree->topLevelItemCount());
    std::iota(rows.begin(), rows.end(), 0);
    if (rows.isEmpty()) {
        showMessage(m_tree->window(), QMessageBox::Information, tr("Copy All"),
                    tr("No configuration items to copy"));
        return;
    }
    copy(rows);
}

void ConfigurationClipboard::copy(const QVector<int> &rows)
{
    m_items->copyRows(rows);
    refresh();
}

QString ConfigurationClipboard::nothingToPaste() const
{
    return tr("No data in clipboard");
}

void ConfigurationClipboard::paste()
{
    const int count = m_items->clipboardSize();
    if (count == 0) {
        showMessage(m_tree->window(), QMessageBox::Information, tr("Paste"), nothingToPaste());
        return;
    }
    const QPointer<ConfigurationClipboard> guard = this;
    const bool isConfirmed = confirm(
        m_tree->window(), tr("Paste"),
        tr("Are you sure you want to paste %1 configuration item(s) from clipboard?").arg(count),
        QMessageBox::Yes);
    if (guard && isConfirmed && !m_items->appendClipboard()) {
        showMessage(m_tree->window(), QMessageBox::Warning, tr("Paste"),
                    tr("Failed to paste configuration items"));
    }
}

void ConfigurationClipboard::cover()
{
    if (m_items->clipboardSize() == 0) {
        showMessage(m_tree->window(), QMessageBox::Warning, tr("Cover"), nothingToPaste());
        return;
    }
    const QPointer<ConfigurationClipboard> guard = this;
    if (confirm(m_tree->window(), tr("Cover"),
                tr("Are you sure you want to override all configuration items?")) &&
        guard) {
        m_items->coverWithClipboard();
    }
}

void ConfigurationClipboard::deleteAll()
{
    if (m_tree->topLevelItemCount() == 0) {
        return;
    }
    const QPointer<ConfigurationClipboard> guard = this;
    if (confirm(m_tree->window(), tr("Delete"),
                tr("Do you want to delete all configuration items?")) &&
        guard) {
        m_tree->clear();
        refresh();
    }
}

void ConfigurationClipboard::refresh()
{
    // All three of them on purpose: what is chosen is also what shows that the tree is meant.
    const bool isSelected = !m_tree->selectedItems().isEmpty();
    for (const Action action : {Copy, CopyAll, DeleteAll}) {
        m_actions.at(action)->setEnabled(isSelected);
    }
    const int count = m_items->clipboardSize();
    m_actions.at(Paste)->setEnabled(count > 0);
    m_actions.at(Cover)->setEnabled(count > 0);
    m_actions.at(Paste)->setToolTip(count > 0 ? tr("Append %1 configuration items").arg(count)
                                              : nothingToPaste());
    m_actions.at(Cover)->setToolTip(
        count > 0 ? tr("Paste %1 configuration items (will overwrite existing data)").arg(count)
                  : nothingToPaste());
}

void ConfigurationClipboard::showMenu(const QPoint &position)
{
    refresh();
    const QPointer<QMenu> menu = new QMenu(m_tree);
    menu->setToolTipsVisible(true);
    for (QAction *action : m_actions) {
        menu->addAction(action);
    }
    menu->exec(m_tree->viewport()->mapToGlobal(position));
    delete menu;
}

} // namespace lctrlsex
