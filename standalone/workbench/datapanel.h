#pragma once

#include <QWidget>

#include <functional>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QSortFilterProxyModel;
class QTreeView;
struct DataSourceKey;
struct ProgrammeError;

namespace workbench {

class DataModel;
class LiveData;

/**
 * The data sources of the programme with their values, how each is doing, and what can be done with
 * them. Says in place what is wrong and what to do when there is nothing.
 */
class DataPanel : public QWidget
{
    Q_OBJECT

public:
    explicit DataPanel(LiveData *live, QWidget *parent = nullptr);

    /** Whether a field can be put into a text now, and whether there is a table to bind. */
    void setTargets(bool hasText, bool hasTable);
    /** Selects a source and shows its keys. */
    void showSource(const QString &name);

signals:
    /** The user wants the value of this qualified key in the text. */
    void insertWanted(const QString &key);
    /** The user wants the table bound to this qualified key; empty unbinds it. */
    void bindWanted(const QString &key);

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildActions();
    void buildTree();
    void buildColumn();
    QWidget *buildToolRow();
    QAction *addAction(const QString &name, void (DataPanel::*run)());
    void fillAddMenu();
    void updateActions();
    void updateDetail();
    void updateIcons();
    void retranslate();

    void addSource(int kind);
    void editSource();
    void removeSource();
    void readNow();
    void insertField();
    void bindTable();
    void activate(const QModelIndex &index);
    void copyKey();
    void tell(const ProgrammeError &error);

    [[nodiscard]] QModelIndex current() const; ///< Of the model, not of the filter.
    [[nodiscard]] QString currentKey() const;

    LiveData *const m_data;
    DataModel *m_model;
    QSortFilterProxyModel *m_filter;
    QLineEdit *m_search;
    QTreeView *m_tree;
    QLabel *m_hint;
    QLabel *m_detail;
    QLabel *m_error;
    QPushButton *m_add;
    QMenu *m_addMenu;
    QAction *m_edit = nullptr;
    QAction *m_remove = nullptr;
    QAction *m_read = nullptr;
    QAction *m_insert = nullptr;
    QAction *m_bind = nullptr;
    QAction *m_copy = nullptr;
    bool m_hasText = false;
    bool m_hasTable = false;
};

} // namespace workbench
