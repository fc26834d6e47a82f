#pragma once

#include <QLabel>
#include <QStringList>

namespace lctrlsex {

/** A tool tip that shows @p text as it is, whatever stands in it, and not all of a long one. */
[[nodiscard]] QString plainToolTip(const QString &text);

/**
 * A label in a cell of a tree. It shows plain text, five lines at most, each cut where the cell
 * ends; its tool tip has more of it. Its text() is all of it.
 *
 * Where there is no text it can show a reason instead, in a muted colour; its property "isReason"
 * tells that.
 */
class CellLabel : public QLabel
{
public:
    /** Its row is @p leastHeight pixels high while there is one line, which is in its middle. */
    explicit CellLabel(int leastHeight, QWidget *parent = nullptr);

    /** Shows @p text, and @p reason where that is empty; the tool tip has both. */
    void setContent(const QString &text, const QString &reason = {});

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const int m_leastHeight;
    QStringList m_lines;
    bool m_isReason = false;
};

} // namespace lctrlsex
