#pragma once

#include <QObject>
#include <QTextCursor>

class QTextEdit;

namespace cutex {
class QxMouseGripBand;
} // namespace cutex

namespace lctrlsex {

/**
 * Lays a band with grips over the picture at the text cursor of a view, and gives the picture the
 * size to which the band was dragged, within 1 pixel and the size of the item.
 *
 * Fields have no band: their size is that of their text. A read-only view has none either.
 */
class ImageResize : public QObject
{
    Q_OBJECT

public:
    /** @p view owns this and has its document already. */
    explicit ImageResize(QTextEdit *view);

    /** The largest size that can be given; none when it is empty. */
    void setLimit(const QSize &limit) { m_limit = limit; }

    [[nodiscard]] cutex::QxMouseGripBand *band() const { return m_band; }

    /** Hides the band until the cursor is moved, the text edited or a picture clicked. */
    void dismiss();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QRect place();
    void wake();
    void followLater();
    void clicked(const QPoint &point);
    void showSize(const QRect &geometry);
    void finish(const QRect &geometry);
    [[nodiscard]] QPoint scrolled() const;

    Q_DISABLE_COPY(ImageResize)

    QTextEdit *m_view;
    cutex::QxMouseGripBand *m_band;
    QSize m_limit;
    QTextCursor m_picture; ///< Before the picture under the band; moves with the text.
    bool m_isDismissed = false;
    bool m_isFollowing = false;
};

} // namespace lctrlsex
