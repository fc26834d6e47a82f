#pragma once

#include "dynamicdata.h"

#include <QDialog>
#include <QHash>

class QDialogButtonBox;
class QTreeWidget;
class QTreeWidgetItem;

namespace lctrlsex {
class CalculationRow;
class ConfigurationClipboard;
class OperationCells;
class OperationItems;
class SettingStatusTips;
class VisibleRows;
} // namespace lctrlsex

/**
 * The dialog in which calculations over the bound data are defined: each a chain of steps, whose
 * results are shown while it is edited.
 *
 * Whoever opens it hands in the data and the clipboard, and takes both back: the clipboard however
 * the dialog was closed, the data when it was accepted. GUI thread only. It may be deleted at any
 * time, also while one of its boxes or menus is open.
 */
class LModbusParameterOperation : public QDialog
{
    Q_OBJECT

public:
    explicit LModbusParameterOperation(QWidget *parent = nullptr);
    ~LModbusParameterOperation() override;

    /** Replaces what is edited. */
    void setDynamicData(const CalculationDynamicData &given);
    /**
     * What is edited as it stands, each calculation with a new identifier, the rest as it was
     * handed in. A calculation that nobody touched is otherwise what it was.
     */
    [[nodiscard]] CalculationDynamicData dynamicData();
    /**
     * For each identifier that dynamicData() gave last the one that the calculation was handed in
     * with; nothing for those that were made or pasted since.
     */
    [[nodiscard]] QHash<QString, QString> formerIds() const { return m_formerIds; }

    /**
     * Replaces the variables on offer, as when the sources have changed. What is shown follows;
     * nothing that was edited is lost.
     */
    void setVariables(const QVector<CalculationVariable> &variables);

    void setClipboardData(const CalculationDynamicData &given);
    /** Whether the clipboard holds a calculation. */
    [[nodiscard]] bool hasClipboardData() const;
    [[nodiscard]] CalculationDynamicData clipboardData() const;

public slots:
    /** Stays open when a name that is still being edited is refused. */
    void accept() override;
    void onAddRootButtonClicked();
    /** Removes the row whose button was clicked. */
    void onDeleteButtonClicked();
    /** Adds a step to the calculation whose button was clicked. */
    void onAddButtonClicked();
    /** Takes over the name in the edit of @p item, or puts the previous one back and says why. */
    void onNameEdited(QTreeWidgetItem *item);
    /** Shows the menu of the clipboard where the mouse pointer is, else where the current row is.
     */
    void ShowContextMenu();
    void OnCopySelectAction();
    void OnCopyAllAction();
    void OnPasteAction();
    void OnCoverAction();
    void OnDeleteAllAction();

    void done(int result) override;

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    /** Goes through the cells in the order in which they are seen. */
    bool focusNextPrevChild(bool next) override;

private:
    void build();
    void setColumns();
    void showColors();
    void addStep(lctrlsex::CalculationRow *calculation);
    void reveal(QTreeWidgetItem *row);
    void removeRow(QTreeWidgetItem *row);
    void removeSelected();
    void editName(lctrlsex::CalculationRow *calculation);
    /** False when the name in the edit was refused. */
    bool takeName(lctrlsex::CalculationRow *calculation);
    void warn(const QString &text);

    QTreeWidget *m_tree = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
    lctrlsex::OperationCells *m_cells = nullptr;
    lctrlsex::VisibleRows *m_rows = nullptr;
    lctrlsex::OperationItems *m_items = nullptr;
    lctrlsex::ConfigurationClipboard *m_clipboard = nullptr;
    lctrlsex::SettingStatusTips *m_tips = nullptr;
    QMap<QString, QString> m_values;
    QHash<QString, QString> m_formerIds;
};
