#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>

/** Answers the next modal dialog; a test asks afterwards whether there was one. */
class ModalAnswerer : public QObject
{
public:
    explicit ModalAnswerer(std::function<void(QDialog *)> answer)
        : m_answer(std::move(answer))
    {
        m_poll.setInterval(5);
        connect(&m_poll, &QTimer::timeout, this, [this] { look(); });
        m_poll.start();
    }

    [[nodiscard]] bool wasAsked() const { return m_wasAsked; }

private:
    void look()
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog != nullptr && dialog->isVisible()) {
            m_poll.stop();
            m_wasAsked = true;
            m_answer(dialog);
        }
    }

    std::function<void(QDialog *)> m_answer;
    QTimer m_poll;
    bool m_wasAsked = false;
};
