#pragma once

#include "lcommon_global.h"

#include <QPushButton>
#include <QScopedPointer>

class LButtonPrivate;

/** A push button that shows a picture, and another while it is hovered or checked. */
class LCOMMON_EXPORT LButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LButton(QWidget *parent = nullptr);
    ~LButton() override;

    /**
     * Sets both pictures, resource or file paths whose extension may be missing.
     * @p margin is by how many pixels a picture is smaller than the button, at least 0. A picture
     * that cannot be read leaves the other in its place, or none.
     */
    void SetBtnImage(const QString &normal, const QString &active, int margin);

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateImage();
    Q_DISABLE_COPY(LButton)
    const QScopedPointer<LButtonPrivate> d;
};
