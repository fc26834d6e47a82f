#pragma once

#include <QLabel>
#include <QTimer>

namespace lctrlsex {

/**
 * A short notice over the lower edge of a dialog, which goes by itself after three seconds.
 *
 * It takes neither focus nor clicks, and goes with its dialog.
 */
class SettingStatusTips : public QLabel
{
public:
    explicit SettingStatusTips(QWidget *dialog);

    /** Shows @p text over the dialog, or over the modal window that is active in its place. */
    void showTip(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void placeOver(const QWidget *window);
    void shrinkToFit();
    void vanish();

    QTimer m_timer;
};

} // namespace lctrlsex
