#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

/**
 * Presses a named button of the next modal dialog, so that a test can run what asks the user.
 *
 * The dialog must come within two seconds; the destructor, or wasAnswered(), tells. Make it before
 * the call that opens the dialog.
 */
class ModalAnswerer : public QObject
{
    Q_OBJECT

public:
    /** @p button is the object name of the button; @p dialog that of the dialog, any when empty. */
    explicit ModalAnswerer(const QString &button, const QString &dialog = QString());
    /** Fails the running test when no such dialog came. */
    ~ModalAnswerer() override;

    [[nodiscard]] bool wasAnswered() const { return m_wasAnswered; }
    /** What the dialog said: its texts, joined. */
    [[nodiscard]] QString text() const { return m_text; }

private:
    void look();

    QString m_button;
    QString m_dialog;
    QString m_text;
    QTimer m_timer;
    int m_looks = 0;
    bool m_wasAnswered = false;
};
