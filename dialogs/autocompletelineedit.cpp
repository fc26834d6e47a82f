#include "autocompletelineedit.h"

#include <QCompleter>
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
    offer->setModel(new QStringListModel(words, offer));
    offer->setFilterMode(Qt::MatchStartsWith);
    offer->setCaseSensitivity(Qt::CaseInsensitive);
    offer->setCompletionMode(QCompleter::PopupCompletion);
    setCompleter(offer);
}
