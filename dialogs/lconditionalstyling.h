#pragma once

#include "configurationclipboard.h"
#include "dynamicdata.h"

#include <QDialog>
#include <QHash>
#include <QMap>

class QTreeWidget;
class QTreeWidgetItem;

namespace lctrlsex {
class ConditionCells;
class ConditionItem;
class TrialPanel;
class VisibleRows;
struct ConditionRow;
} // namespace lctrlsex

/**
 * The modal dialog in which a user edits the conditional styles of a text item: named configuration
 * items, each bound to one field, with conditions and the styles that are applied while they hold.
 *
 * It edits copies only. What a stored condition has and no cell shows (a font that is not
 * installed, a size that the box does not reach, members of a later version) stays as it is until
 * the user sets that very thing. Below the tree a value can be tried. GUI thread only.
 */
class LConditionalStyling : public QDialog, private lctrlsex::ConfigurationItems
{
    Q_OBJECT

public:
    explicit LConditionalStyling(QWidget *parent = nullptr);
    ~LConditionalStyling() override;

    /** Replaces what is edited and rebuilds the tree from it. */
    void setDynamicData(const DynamicData &edited);
    /**
     * What is edited, rebuilt from the tree: each item gets a new identifier, an UUID as text.
     * formerIds() then says which items were there before.
     */
    [[nodiscard]] DynamicData dynamicData();
    /** For the items of the last dynamicData() that were loaded: the identifier that each had. */
    [[nodiscard]] QHash<QString, QString> formerIds() const { return m_formerIds; }

    /** Sets what "Paste" and "Cover" take: only the list of items is used as the clipboard. */
    void setClipboardData(const DynamicData &edited);
    [[nodiscard]] DynamicData clipboardData() const { return m_clipboardData; }
    /** Whether the clipboard holds items; a copy survives a dialog that is cancelled. */
    [[nodiscard]] bool hasClipboardData() const { return !m_clipboardData.items.isEmpty(); }

    /** The fields on offer from now on, also while the dialog is open. Bindings stay. */
    void setFields(const QStringList &fields);
    /** Current values by field, for trying conditions. */
    void setLiveValues(const QMap<QString, QString> &values);

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void onAddRootButtonClicked();
    void onAddButtonClicked();
    void onDeleteButtonClicked();
    void onColorButtonClicked();
    void onItemChanged(QTreeWidgetItem *item, int column);
    void onItemDoubleClicked(QTreeWidgetItem *item, int column);
    void showContextMenu(const QPoint &position);
    void onCopySelectAction();
    void onCopyAllAction();
    void onPasteAction();
    void onCoverAction();
    void onDeleteAllAction();
    void updateAllSerialNumbers();

private:
    [[nodiscard]] int clipboardSize() const override { return m_clipboardData.items.size(); }
    void copyRows(const QVector<int> &rows) override;
    [[nodiscard]] bool appendClipboard() override;
    void coverWithClipboard() override;

    void buildTree();
    void addShortcuts();
    void stretchExpressions();
    void loadTree();
    void appendItem(const QString &name, const FieldConditions &entry);
    void addCondition(lctrlsex::ConditionItem *row);
    void deleteRow(lctrlsex::ConditionItem *row);
    void editName(lctrlsex::ConditionItem *row);
    void restoreName(QTreeWidgetItem *item);
    static void numberRows(QTreeWidgetItem *item);
    void rebuildData();
    void scheduleTrial();
    void tryValue();
    [[nodiscard]] bool isDuplicate(const QTreeWidgetItem *item) const;
    [[nodiscard]] QString uniqueName(const QString &base, const QTreeWidgetItem *except) const;
    [[nodiscard]] lctrlsex::ConditionItem *itemAt(int index) const;
    [[nodiscard]] lctrlsex::ConditionItem *currentItem() const;

    DynamicData m_data;
    DynamicData m_clipboardData;
    QHash<QString, QString> m_formerIds;
    QTreeWidget *m_tree = nullptr;
    lctrlsex::ConfigurationClipboard *m_clipboard = nullptr;
    lctrlsex::ConditionCells *m_cells = nullptr;
    lctrlsex::VisibleRows *m_visibleRows = nullptr;
    lctrlsex::TrialPanel *m_trial = nullptr;
    bool m_isTrialScheduled = false;
};
