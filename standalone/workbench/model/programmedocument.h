#pragma once

#include "programmefile.h"

#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QVariantMap>
#include <QVector>

#include <memory>

class LNode;
class LTextEffectNode;
class QTextEdit;
class QUndoStack;

namespace workbench {

class ChangeRecorder;
class TreeWatch;

/**
 * The programme being edited: its nodes, file, undo history and unsaved state. GUI thread.
 *
 * Every change of a node in the tree ends up in the history, whoever made it. What this class's own
 * operations do is a step at once. What others write on a node (the item editor's tool bar and
 * panel) becomes a step at the end of the event loop's turn, all of one turn together. What a node
 * keeps of its text is a step when the view that is attached has something to undo or redo; a view
 * that has just loaded a text has not, so what its editor writes then (a normalised form of the
 * same text) joins the state that the history is in, and the programme stays unmodified. So does a
 * value that reads the same as before, such as a default that is written out.
 */
class ProgrammeDocument : public QObject
{
    Q_OBJECT

public:
    /** Starts with newProgramme(). */
    explicit ProgrammeDocument(QObject *parent = nullptr);
    ~ProgrammeDocument() override;

    /** The root; never null. Another one after replaced(). */
    [[nodiscard]] LControllerNode *controller() const;
    /** The nodes as they change. */
    [[nodiscard]] TreeWatch *tree() const;
    /** Empty while the programme was never saved. */
    [[nodiscard]] QString fileName() const;
    /** The file's name without its folder and ending, or "Untitled". */
    [[nodiscard]] QString displayName() const;
    /** Whether there is something that the file does not hold. */
    [[nodiscard]] bool isModified() const;
    /**
     * The steps and their names. Undo and redo through this class: it first collects what was
     * changed in the same turn of the event loop.
     */
    [[nodiscard]] QUndoStack *history() const;

    /** An LED controller with a screen of 256 x 64, a frame over all of it and a text item. */
    void newProgramme();
    /** Opens a file; on an error nothing changes. */
    [[nodiscard]] ProgrammeError open(const QString &fileName);
    /** Opens a file as the start of a programme that was never saved. */
    [[nodiscard]] ProgrammeError openCopy(const QString &fileName);
    /**
     * Goes on with a programme that was not saved: @p programme as writeProgramme() gave it, to be
     * saved as @p fileName, which may be empty. It is modified from the start.
     */
    [[nodiscard]] ProgrammeError restore(const QByteArray &programme, const QString &fileName);
    /**
     * Writes the file; an error when there is no file name. In another folder than before the file
     * names of data sources are put so that they name the same files from there, whichever step is
     * undone or redone later.
     */
    [[nodiscard]] ProgrammeError save();
    [[nodiscard]] ProgrammeError saveAs(const QString &fileName);
    /** The programme as it would be saved now, fit for restore(). */
    [[nodiscard]] QByteArray contents();

    // Each is one step and gives null or false, and no step, where it is not possible

    LNode *addScreen();
    /** A frame on @p screen, over all of it when it is the first. */
    LNode *addFrame(LNode *screen);
    /** A text item in a frame; on a screen it gets a frame of its own. */
    LNode *addItem(LNode *frameOrScreen);
    /** A copy of @p node and all below it, behind it. Not of the controller. */
    LNode *duplicate(LNode *node);
    bool remove(LNode *node);
    bool rename(LNode *node, const QString &name);
    /** Whether move() would do it: the kinds fit. */
    [[nodiscard]] bool canMove(const LNode *node, const LNode *newParent) const;
    /** Makes @p node stand at @p index of @p newParent afterwards; an index too high is the end. */
    bool move(LNode *node, LNode *newParent, int index);
    /**
     * Place and size of a frame, the size of anything else, in pixels. An empty size means the one
     * of the node above. Sides may be 1 to 16384.
     */
    bool setGeometry(LNode *node, const QRect &rect);
    /** An invalid value removes the attribute. False when nothing would change. */
    bool setAttributes(LNode *node, const QVariantMap &values, const QString &stepName);

    /** Folder that file names of the programme are relative to: its own, or where it came from. */
    [[nodiscard]] QString folder() const;
    /**
     * Members of the file's root object that stand for no node. Replacing them is a step; false
     * when they are the same as before.
     */
    [[nodiscard]] QJsonObject rootMembers() const;
    bool setRootMembers(const QJsonObject &members, const QString &stepName);

    /**
     * @p view shows the text of @p node, which is loaded, from now on. Call it after the editor was
     * bound, again after each reloadItem(), and detachTextEditor() before the editor is bound to
     * anything else: what it writes while it loads is then known for that.
     */
    void attachTextEditor(LTextEffectNode *node, QTextEdit *view);
    void detachTextEditor();

public slots:
    void undo();
    void redo();

signals:
    /** The nodes are about to be deleted: let go of them. */
    void aboutToReplace();
    /** Another programme is in place. */
    void replaced();
    void modifiedChanged(bool isModified);
    void fileNameChanged();
    /** The file holds the programme as it is. */
    void saved();
    /** What would be saved has changed. */
    void contentsChanged();
    /** rootMembers() are others, of the same programme. */
    void rootMembersChanged();
    /** @p node left the tree, and is not merely moved; undo may bring it back. */
    void nodeTaken(LNode *node);
    /**
     * Undo or redo changed what the node stores: if the editor is bound to it, bind it anew. Sent
     * before revealNode(); the view is detached when it showed this node.
     */
    void reloadItem(LTextEffectNode *node);
    /** Undo or redo touched this node: select it. */
    void revealNode(LNode *node);

private:
    [[nodiscard]] static ReadProgramme loadFile(const QString &fileName);
    void install(std::unique_ptr<LControllerNode> controller, const QString &fileName,
                 const QString &origin = QString());
    /** Makes rootMembers() those of a file in another folder. */
    void moveMembers(const QString &to);
    /** Collects what changed; false inside an undo or redo, where nothing may be changed. */
    bool isReady();
    void announceTouched();
    LNode *insert(LNode *parent, int index, std::unique_ptr<LNode> node, const QString &stepName);

    // In the order in which they may be torn down, last first: steps own nodes and use the
    // recorder.
    std::unique_ptr<TreeWatch> m_tree;
    std::unique_ptr<LControllerNode> m_controller;
    std::unique_ptr<QUndoStack> m_history;
    std::unique_ptr<ChangeRecorder> m_recorder;
    QVector<QPointer<LNode>> m_taken; ///< By the step that is being undone or redone.
    QString m_fileName;
    QString m_origin; ///< Folder of the file that the programme was copied from.
};

} // namespace workbench
