#include "celllabel.h"

#include <QPainter>
#include <QVariant>

#include "shorttext.h"

namespace lctrlsex {

namespace {

constexpr int mostLines = 5;
constexpr int mostTipLines = 20;
constexpr int longestTipLine = 80;
/** No cell is as wide as this many characters. */
constexpr int longestLine = 400;
constexpr int sideMargin = 4;
/** How much of its colour a muted text keeps: 4.5 to 1 against the ground, whichever is dark. */
constexpr qreal muted = 0.7;

const QChar ellipsis(0x2026);

/** The first lines of @p text; one that is cut ends in an ellipsis. */
QStringList firstLines(const QString &text, int most, int longest)
{
    QStringList lines;
    int begin = 0;
    while (begin <= text.size() && lines.size() < most) {
        int end = text.indexOf(QLatin1Char('\n'), begin);
        end = end < 0 ? text.size() : end;
        lines.append(shortText(text.mid(begin, qMin(end - begin, 2 * longest + 2)), longest));
        begin = end + 1;
    }
    if (begin <= text.size()) {
        lines.last() += QLatin1Char(' ') + ellipsis;
    }
    return lines;
}

/** @p text with line feeds where a line would become too long for a tool tip. */
QString folded(const QString &text)
{
    QString result;
    int column = 0;
    for (const QChar character : text.left(mostTipLines * longestTipLine + 1)) {
        column = character == QLatin1Char('\n') ? 0 : column + 1;
        if (column > longestTipLine && !character.isLowSurrogate()) {
            result += QLatin1Char('\n');
            column = 1;
        }
        result += character;
    }
    return result;
}

QColor mutedColor(const QPalette &palette)
{
    const QColor &text = palette.color(QPalette::WindowText);
    const QColor &ground = palette.color(QPalette::Window);
    const auto mixed = [](int of, int with) {
        return qRound(muted * of + (1 - muted) * with);
    };
    return {mixed(text.red(), ground.red()), mixed(text.green(), ground.green()),
            mixed(text.blue(), ground.blue())};
}

} // namespace

QString plainToolTip(const QString &text)
{
    if (text.isEmpty()) {
        return {};
    }
    const QStringList lines = firstLines(folded(text), mostTipLines, longestTipLine);
    return QStringLiteral("<p style='white-space: pre'>%1</p>")
        .arg(lines.join(QLatin1Char('\n')).toHtmlEscaped());
}

CellLabel::CellLabel(int leastHeight, QWidget *parent)
    : QLabel(parent)
    , m_leastHeight(leastHeight)
{
    setTextFormat(Qt::PlainText);
}

void CellLabel::setContent(const QString &text, const QString &reason)
{
    m_isReason = text.isEmpty() && !reason.isEmpty();
    m_lines = firstLines(m_isReason ? reason : text, mostLines, longestLine);
    setText(text);
    setProperty("isReason", m_isReason);
    setAccessibleDescription(reason);
    const QString gap = text.isEmpty() || reason.isEmpty() ? QString() : QStringLiteral("\n\n");
    setToolTip(plainToolTip(reason + gap + text));
    update();
}

QSize CellLabel::sizeHint() const
{
    return {0, m_leastHeight + (qMax(1, m_lines.size()) - 1) * fontMetrics().lineSpacing()};
}

void CellLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setPen(m_isReason ? mutedColor(palette()) : palette().color(QPalette::WindowText));
    const int lineHeight = fontMetrics().lineSpacing();
    const int room = width() - 2 * sideMargin;
    QRect line(sideMargin, (m_leastHeight - lineHeight) / 2, room, lineHeight);
    for (const QString &text : qAsConst(m_lines)) {
        painter.drawText(line, Qt::AlignVCenter | Qt::TextSingleLine,
                         fontMetrics().elidedText(text, Qt::ElideRight, room));
        line.translate(0, lineHeight);
    }
}

} // namespace lctrlsex
