#pragma once

#include "texteditthread.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

class QTextDocument;
class QTextEdit;
class TextProgressWidget;

namespace lctrlsex {

/**
 * Runs one conversion at a time of the document that a view shows, in a thread of its own.
 *
 * The view cannot be edited meanwhile. One that takes longer is shown in a window from which it can
 * be cancelled. The thread never sees the view's document, and a conversion that was stopped is
 * left to end by itself. GUI thread only; the destructor waits for the threads.
 */
class ItemConversion : public QObject
{
    Q_OBJECT

public:
    explicit ItemConversion(QTextEdit *view);
    ~ItemConversion() override;

    [[nodiscard]] bool isRunning() const { return m_thread != nullptr; }
    /** Begins; nothing happens while one runs. */
    void start(TextOperatType type);
    /** Ends it without a result and without ended(); nothing happens while none runs. */
    void stop();

    enum Outcome {
        Done,      ///< New colours are in the view's document, as one undo step if any changed.
        Cancelled, ///< By the user; nothing was changed.
        Refused,   ///< The guard does not let the text pass; nothing was changed.
        Edited     ///< The text was changed meanwhile and is left as it is.
    };

signals:
    /** It is over, as an Outcome says, and the view can be edited as before. */
    void ended(int type, int outcome);

private:
    void letGo();
    void showProgress();
    void finish();
    void cancel();
    [[nodiscard]] Outcome apply();

    Q_DISABLE_COPY(ItemConversion)

    QPointer<QTextEdit> m_view;
    TextEditThread *m_thread = nullptr; ///< Of the conversion that runs; others are ending.
    QPointer<TextProgressWidget> m_progress;
    QTimer m_delay;
    TextOperatType m_type = ColorFlip;
    int m_run = 0; ///< Counts start(), so that what a thread says late is told from the next one's.
    int m_revision = 0;
    bool m_wasReadOnly = false;
};

} // namespace lctrlsex
