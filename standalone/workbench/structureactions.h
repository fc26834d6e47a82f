#pragma once

#include "lnode.h"
#include <QObject>

#include <QPointer>
#include <QVector>

class QAction;

namespace workbench {

class ProgrammeDocument;

/**
 * The commands that change the tree of the programme, for the menu, the tool row and the context
 * menu alike: what each does and when it can be used.
 */
class StructureActions : public QObject
{
    Q_OBJECT

public:
    explicit StructureActions(ProgrammeDocument *document, QObject *parent = nullptr);

    /** The node that the commands work on; null for none. */
    void setCurrent(LNode *node);
    [[nodiscard]] LNode *current() const { return m_current; }

    [[nodiscard]] QAction *addScreen() const { return m_addScreen; }
    [[nodiscard]] QAction *addFrame() const { return m_addFrame; }
    [[nodiscard]] QAction *addItem() const { return m_addItem; }
    [[nodiscard]] QAction *duplicate() const { return m_duplicate; }
    [[nodiscard]] QAction *rename() const { return m_rename; }
    [[nodiscard]] QAction *remove() const { return m_remove; }
    [[nodiscard]] QAction *moveUp() const { return m_moveUp; }
    [[nodiscard]] QAction *moveDown() const { return m_moveDown; }
    /** All of them in the order of a menu; null stands for a separator. */
    [[nodiscard]] QVector<QAction *> inOrder() const;

    /** Sets texts in the current language. */
    void retranslate();
    /** Draws the pictures in the current palette. */
    void updateIcons();
    /** Decides anew what can be used; called after each change of the tree. */
    void updateEnabled();

signals:
    /** A command made this node; it is to be selected. */
    void nodeMade(LNode *node);
    /** The node is about to leave the programme. */
    void aboutToRemove(LNode *node);
    /** The user wants to type another name for the current node. */
    void renameWanted();

private:
    QAction *add(const QString &name, void (StructureActions::*run)());
    void runAddScreen();
    void runAddFrame();
    void runAddItem();
    void runDuplicate();
    void runRename();
    void runRemove();
    void runMoveUp();
    void runMoveDown();
    void moveBy(int step);

    ProgrammeDocument *m_document;
    QPointer<LNode> m_current;
    QAction *m_addScreen;
    QAction *m_addFrame;
    QAction *m_addItem;
    QAction *m_duplicate;
    QAction *m_rename;
    QAction *m_remove;
    QAction *m_moveUp;
    QAction *m_moveDown;
};

} // namespace workbench
