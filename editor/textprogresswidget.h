#pragma once

#include "lctrlsexexport.h"

#include <QDialog>
#include <QPointer>

class QMessageBox;
class QProgressBar;

/**
 * Shows how far a conversion is, over the host's main window, and keeps the user from the rest of
 * the application meanwhile. It cannot be closed until that is allowed; Escape never closes it.
 */
class LCTRLSEX_EXPORT TextProgressWidget : public QDialog
{
    Q_OBJECT

public:
    explicit TextProgressWidget(QWidget *parent = nullptr);

    /** Whether it can be closed at all; false at first. */
    void SetAllowClose(bool allow);
    /**
     * Whether the user is asked before it closes; false at first. When the question is open already
     * and is not wanted any more, it goes away and the window closes.
     */
    void SetCloseSymbol(bool ask);

    /** Whether it shows, until a value comes, only that something goes on; false at first. */
    void SetBusy(bool busy);

public slots:
    /** Shows @p value percent; one outside 0 to 100 is ignored. The name is kept so. */
    void SetProgressVaule(int value);
    /** Sets every text anew in the current language. */
    void Translate();

signals:
    /** The user closed the window and wants the conversion stopped. The name is kept so. */
    void CancleOperat();
    /** The user was asked and lets the conversion go on; the window stays. The name is kept so. */
    void IgnoreOperat();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    Q_DISABLE_COPY(TextProgressWidget)

    int askToQuit();

    QProgressBar *m_bar;
    bool m_allowClose = false;
    bool m_closeSymbol = false;
    QPointer<QMessageBox> m_question;
};
