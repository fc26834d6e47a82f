#include "autocompletelineedit.h"

#include <QCompleter>
#include <QListView>
#include <QStringListModel>

AutoCompleteLineEdit::AutoCompleteLineEdit(QWidget *parent)
    : QLineEdit(parent)
{}

void AutoCompleteLineEdit::setWords(const QStringList &words)
{
    m_words = words;
    setCompleter(nullptr); // deletes the one before, which belongs to this
    if (words.isEmpty()) {
        return;
    }
    auto *offer = new QCompleter(this);
    offer->setFilterMode(Qt::MatchStartsWith);
    offer->setCaseSensitivity(Qt::CaseInsensitive);
    offer->setCompletionMode(QCompleter::PopupCompletion);
    offer->setModel(new QStringListModel(words, offer));
    setCompleter(offer);
}

void AutoCompleteLineEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    // Thousands of words may be offered at once, and not every field is used.
    auto *list = completer() != nullptr ? qobject_cast<QListView *>(completer()->popup()) : nullptr;
    if (list != nullptr) {
        list->setUniformItemSizes(true);
    }
}
