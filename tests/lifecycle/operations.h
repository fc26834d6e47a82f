#pragma once

#include "programme.h"

#include <QVector>

#include <functional>

class QTextEdit;
namespace Lum {
class INodeClient;
}

struct Stage;

/** Something that a user or a host does. */
struct Operation
{
    /** In which state of the item it is done. */
    enum Start {
        Unbound, ///< The item is not bound.
        New,     ///< The item is not bound, and was never edited.
        Bound,   ///< The item is bound, a word is selected.
        Typing,  ///< The item is bound, the cursor stands in a word.
        Emptied, ///< The item is bound, its text was deleted.
        Edited   ///< As Typing, with text that has not reached the node yet.
    };

    QString name;
    Start start;
    std::function<void(const Stage &)> run;
};

/** The plug-in's client with one item to work on and another one that is none of its business. */
struct Stage
{
    Stage(Programme *own, Programme *foreign);

    /** Binds @p node anew, shows the client and looks up the widgets. */
    void open(LNode *node);
    /** Brings the item to the state in which an operation starts. */
    void prepare(Operation::Start start);
    /** Selects from one position of the document to another one. */
    void select(int from, int to) const;
    /** Delivers what is queued, such as the editor's answer to a change of its document. */
    static void drain();

    Programme *item;
    Programme *other;
    Lum::INodeClient *client;
    QWidget *editor = nullptr;
    QTextEdit *view = nullptr;
};

/** A document with text, a bound field and a table. */
[[nodiscard]] QString richDocument();
/** Fills the data sources that the documents and items speak of. */
void setUpSources();
/** Calculations, conditional styles and a source, as a user would have set them. */
void setUpBinding(LTextEffectNode *node);

/**
 * Every slot of the editor and of the client, every action, button, list and box, keys, and what
 * hosts do. @p stage is an open one, where they are looked up; each runs on a stage of its own.
 */
[[nodiscard]] QVector<Operation> allOperations(const Stage &stage);
