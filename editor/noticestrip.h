#pragma once

#include <QFrame>

class QLabel;
class QPushButton;
class QToolButton;

namespace lctrlsex {

/** The strip above the text that says what its author has to know; hidden when there is nothing. */
class NoticeStrip : public QFrame
{
    Q_OBJECT

public:
    enum Kind {
        Kept,    ///< Why the stored document is not shown; its text may be edited instead.
        Refusal, ///< Why something was not done; may be closed.
        Warning  ///< What will go wrong if nothing is done; may be closed.
    };

    explicit NoticeStrip(QWidget *parent);

    /** Shows @p text, as plain text, in place of what was shown. */
    void show(Kind kind, const QString &text);
    /** Hides the strip when it shows a notice of this kind. */
    void clear(Kind kind);
    /** Sets the buttons anew in the current language. */
    void translate();

signals:
    /** The author wants to edit the text in place of the document that is kept. */
    void plainTextWanted();

private:
    Q_DISABLE_COPY(NoticeStrip)

    QLabel *m_label;
    QPushButton *m_editAsPlainText;
    QToolButton *m_close;
    Kind m_kind = Kept;
};

} // namespace lctrlsex
