#include "coloricon.h"
#include "edittoolbar.h"
#include "toolbarwidgets.h"

#include <QActionGroup>
#include <QSignalBlocker>
#include <QSpinBox>

namespace lctrlsex {

TypingStyle EditToolBar::typingStyle(const QColor &color) const
{
    TypingStyle style;
    style.family = family();
    style.pointSize = int(m_comboSizeAction->value().toDouble());
    style.italic = isChecked(QStringLiteral("actionTextItalic"));
    style.underline = isChecked(QStringLiteral("actionTextUnderline"));
    style.bold = isChecked(QStringLiteral("actionTextBold"));
    style.color = color;
    return style;
}

QString EditToolBar::family() const
{
    return m_comboFontAction->value();
}

bool EditToolBar::isChecked(const QString &name) const
{
    const QAction *found = action(name);
    return found != nullptr && found->isChecked();
}

int EditToolBar::wordSpacing() const
{
    return m_spxWord->spinBox()->value();
}

int EditToolBar::lineSpacing() const
{
    return m_spxLine->spinBox()->value();
}

int EditToolBar::alignOf(const QAction *action)
{
    return action != nullptr ? action->data().toInt() : 0;
}

void EditToolBar::setChecked(const QString &name, bool on)
{
    QAction *found = action(name);
    if (found != nullptr && found->isChecked() != on) {
        found->setChecked(on); // sends toggled(), which nobody listens to, and not triggered()
    }
}

void EditToolBar::showFormat(const ToolbarFormat &format)
{
    showFamily(format.family);
    showSize(format.pointSize);
    setChecked(QStringLiteral("actionTextBold"), format.bold);
    setChecked(QStringLiteral("actionTextItalic"), format.italic);
    setChecked(QStringLiteral("actionTextUnderline"), format.underline);
    showTextColor(format.color);
    showAlign(format.align);
    showLineSpacing(format.lineSpacing);
}

void EditToolBar::showFamily(const QString &family)
{
    if (family != m_comboFontAction->value()) {
        m_comboFontAction->showValue(family, tr("%1 (missing)").arg(family));
    }
}

void EditToolBar::showSize(qreal pointSize)
{
    const QString size = QString::number(pointSize);
    if (size != m_comboSizeAction->value()) {
        m_comboSizeAction->showValue(size, size);
    }
}

void EditToolBar::showTextColor(const QColor &color)
{
    if (color != m_textColor) {
        m_textColor = color;
        action(QStringLiteral("actionTextColor"))
            ->setIcon(barIcon(QStringLiteral(":/images/text_drawcolor.png"), color));
    }
}

void EditToolBar::showTextBackground(const QColor &color)
{
    if (color != m_textBackground) {
        m_textBackground = color;
        action(QStringLiteral("actionTextBgcolor"))
            ->setIcon(barIcon(QStringLiteral(":images/TextBgcolor.png"), color));
    }
}

void EditToolBar::showEditorBackground(const QColor &color)
{
    if (color != m_editorBackground) {
        m_editorBackground = color;
        action(QStringLiteral("actionEditorBgColor"))->setIcon(squareIcon(color));
    }
}

void EditToolBar::showStrokeColor(const QColor &color)
{
    if (color != m_stroke) {
        m_stroke = color;
        m_strokeAction->setIcon(barIcon(QStringLiteral(":images/stroke.png"), color));
    }
}

void EditToolBar::showAlign(Qt::Alignment align)
{
    const auto actions = m_alignGroup->actions();
    for (QAction *candidate : actions) {
        if (alignOf(candidate) == int(align) && !candidate->isChecked()) {
            candidate->setChecked(true);
        }
    }
}

void EditToolBar::showVAlign(int align)
{
    const bool isEdge = align == Qt::AlignBottom || align == Qt::AlignTop;
    const int wanted = isEdge ? align : int(Qt::AlignVCenter);
    const auto actions = m_vAlignGroup->actions();
    for (QAction *candidate : actions) {
        if (alignOf(candidate) == wanted) {
            candidate->setChecked(true);
        }
    }
}

void EditToolBar::showWordSpacing(int value)
{
    if (value != wordSpacing()) {
        m_spxWord->showValue(value);
    }
}

void EditToolBar::showLineSpacing(int value)
{
    if (value != lineSpacing()) {
        m_spxLine->showValue(value);
    }
}

void EditToolBar::showFormattingActions()
{
    for (const Entry &entry : entries()) {
        const QString name = QLatin1String(entry.name);
        if (name == QLatin1String("actionEditorBgColor")) {
            break; // those before it format text
        }
        if (name != QLatin1String("actionAlignJustify")) {
            action(name)->setVisible(true);
        }
    }
}

void EditToolBar::translate()
{
    for (const Entry &entry : entries()) {
        QAction *const one = action(QLatin1String(entry.name));
        one->setText(tr(entry.text));
        one->setToolTip(tr(entry.tip));
    }
    const QString line = tr("Line Spacing:");
    m_spxLine->spinBox()->setToolTip(line);
    m_spxLine->spinBox()->setAccessibleName(line);
    const QString word = tr("Word Spacing:");
    m_spxWord->spinBox()->setToolTip(word);
    m_spxWord->spinBox()->setAccessibleName(word);
    m_comboFontAction->comboBox()->setToolTip(tr("Font"));
    m_comboFontAction->comboBox()->setAccessibleName(tr("Font"));
    m_comboSizeAction->comboBox()->setToolTip(tr("Font Size"));
    m_comboSizeAction->comboBox()->setAccessibleName(tr("Font Size"));
    const QString family = m_comboFontAction->value();
    if (!family.isEmpty()) {
        m_comboFontAction->showValue(family, tr("%1 (missing)").arg(family));
    }
}

} // namespace lctrlsex
