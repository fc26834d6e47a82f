#include "lbutton.h"

#include <QIcon>
#include <QImageReader>
#include <QPixmap>

class LButtonPrivate
{
public:
    QIcon normal;
    QIcon active;
    int margin = 0;
    bool hovered = false;
};

LButton::LButton(QWidget *parent)
    : QPushButton(parent)
    , d(new LButtonPrivate)
{
    connect(this, &QAbstractButton::toggled, this, &LButton::updateImage);
}

LButton::~LButton() = default;

// The reader, unlike a pixmap, completes a name whose extension is missing on every path.
static QIcon readIcon(const QString &file)
{
    const QImage image = QImageReader(file).read();
    return image.isNull() ? QIcon() : QIcon(QPixmap::fromImage(image));
}

void LButton::SetBtnImage(const QString &normal, const QString &active, int margin)
{
    d->normal = readIcon(normal);
    d->active = readIcon(active);
    if (d->normal.isNull()) {
        d->normal = d->active;
    }
    if (d->active.isNull()) {
        d->active = d->normal;
    }
    d->margin = qMax(0, margin);
    updateImage();
}

void LButton::enterEvent(QEvent *event)
{
    d->hovered = true;
    updateImage();
    QPushButton::enterEvent(event);
}

void LButton::leaveEvent(QEvent *event)
{
    d->hovered = false;
    updateImage();
    QPushButton::leaveEvent(event);
}

void LButton::resizeEvent(QResizeEvent *event)
{
    updateImage();
    QPushButton::resizeEvent(event);
}

void LButton::updateImage()
{
    if (d->normal.isNull()) {
        return;
    }
    const QIcon &wanted = d->hovered || isChecked() ? d->active : d->normal;
    if (icon().cacheKey() != wanted.cacheKey()) {
        setIcon(wanted);
    }
    constexpr int smallest = 8;
    const int side = qMax(smallest, qMin(width(), height()) - d->margin);
    setIconSize(QSize(side, side));
}
