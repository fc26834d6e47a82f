#pragma once

#include "programme.h"

class QTextEdit;
namespace Lum {
class INodeClient;
}

/** The plug-in's client with one item to work on and another one that is none of its business. */
struct Stage
{
    /** In which state of the item an operation begins. */
    enum Start {
        Unbound, ///< The item is not bound.
        New,     ///< The item is not bound, and was never edited.
        Bound,   ///< The item is bound, a word is selected.
        Typing,  ///< The item is bound, the cursor stands in a word.
        Emptied, ///< The item is bound, its text was deleted.
        Edited   ///< As Typing, with text that has not reached the node yet.
    };

    Stage(Programme *own, Programme *foreign);

    /** Binds @p node and looks up the widgets. */
    void open(LNode *node);
    /** Brings the item to the state in which an operation starts. */
    void prepare(Start start);
    /** Selects from one position of the document to another one. */
    void select(int from, int to) const;
    /** Whether the client lets somebody type into the other item, and that text arrives there. */
    [[nodiscard]] bool otherTakesText();
    /** Delivers what is queued, such as the editor's answer to a change of its document. */
    static void drain();

    Programme *item;
    Programme *other;
    Lum::INodeClient *client;
    QWidget *editor = nullptr;
    QTextEdit *view = nullptr;
};

/** Drops what a platform without windows says of every window, menu and dialog. */
void quietenPlatform();
/** Words of the other item's document. */
[[nodiscard]] QString foreignWords();
/** A document with text, a bound field and a table. */
[[nodiscard]] QString richDocument();
/** Fills the data sources that the documents and items speak of. */
void setUpSources();
/** Calculations, conditional styles and a source, as a user would have set them. */
void setUpBinding(LTextEffectNode *node);
