#pragma once

#include <QWidget>

class LNode;
class QLabel;
class QPushButton;
class QTreeView;

namespace workbench {

class ProgrammeTreeModel;
class StructureActions;

/** The tree of the programme with the row of commands below it. */
class ProgrammePanel : public QWidget
{
    Q_OBJECT

public:
    ProgrammePanel(ProgrammeTreeModel *model, StructureActions *actions, QWidget *parent = nullptr);

    [[nodiscard]] LNode *currentNode() const;
    /** Selects a node and shows it; null and foreign nodes select none. */
    void setCurrentNode(LNode *node);
    /** Opens the name of the current node for typing. */
    void renameCurrent();
    void focusTree();

signals:
    /** Another node is selected; null when none is. */
    void currentNodeChanged(LNode *node);
    /** A node was double-clicked or Return pressed on it. */
    void nodeActivated(LNode *node);

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildTree();
    QWidget *buildToolRow();
    void retranslate();
    void updateIcons();
    void updateHint();

    ProgrammeTreeModel *m_model;
    StructureActions *m_actions;
    QTreeView *m_tree;
    QLabel *m_hint;
    QPushButton *m_add;
};

} // namespace workbench
