#pragma once

#include <QFrame>
#include <QVector>

#include <functional>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QToolButton;
class QVBoxLayout;

namespace workbench {

/** Something the user is told in place; texts are functions, so that they follow the language. */
struct Notice
{
    enum Kind { Information, Warning, Error };

    struct Button
    {
        QString name; ///< Object name.
        std::function<QString()> label;
        std::function<void()> action;
        bool closes = true; ///< Whether the notice goes once the action ran.
    };

    QString id; ///< A notice takes the place of the one with the same id.
    Kind kind = Information;
    std::function<QString()> text; ///< Plain text.
    QVector<Button> buttons;
    std::function<void()> closed = {}; ///< Runs when the user closes it without a button.
};

/** One notice as a bar: a sign, the text, its buttons and one that closes it. */
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(const Notice &notice, QWidget *parent = nullptr);

    [[nodiscard]] QString id() const { return m_notice.id; }
    [[nodiscard]] QString text() const;

signals:
    /** The notice is done with. */
    void finished();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void buildButtons(QHBoxLayout *row);
    void retranslate();
    void updateSign();

    Notice m_notice;
    QLabel *m_sign;
    QLabel *m_text;
    QVector<QPushButton *> m_buttons;
    QToolButton *m_close;
};

/** The notices that are to be read now, below each other; takes no room when there are none. */
class NoticeArea : public QWidget
{
    Q_OBJECT

public:
    explicit NoticeArea(QWidget *parent = nullptr);

    /** Shows a notice, in place of the one with its id. */
    void post(const Notice &notice);
    /** Takes a notice away; nothing happens when there is none of that id. */
    void dismiss(const QString &id);
    /** The text of a notice, empty when there is none of that id. */
    [[nodiscard]] QString textOf(const QString &id) const;

private:
    [[nodiscard]] NoticeBar *find(const QString &id) const;

    QVBoxLayout *m_layout;
    QVector<NoticeBar *> m_bars;
};

} // namespace workbench
