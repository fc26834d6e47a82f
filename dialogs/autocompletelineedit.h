#pragma once

#include <QLineEdit>

/** A line edit that offers words beginning with what is typed. */
class AutoCompleteLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit AutoCompleteLineEdit(QWidget *parent = nullptr);

    /** The words on offer, in the order they are offered in; none at first. */
    [[nodiscard]] QStringList words() const { return m_words; }
    /** Replaces them; the text stays. Without words there is no completer. */
    void setWords(const QStringList &words);

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    QStringList m_words;
};
