#include "documentsetup.h"
#include "edittoolbar.h"
#include "formatcommands.h"
#include "ltexteffectnode.h"
#include "nodecall.h"
#include "nodepublisher.h"
#include "textedit.h"

using lctrlsex::nodeCall;

namespace {

constexpr int LeastLineSpacing = 100;
constexpr int MostWordSpacing = 99;

} // namespace

// Applying values

void TextEdit::mergeFormatOnWordOrSelection(const QTextCharFormat &format)
{
    m_format->mergeOnWordOrSelection(format);
}

void TextEdit::TextFontNameChanged(const QString &family)
{
    if (family.isEmpty()) {
        return;
    }
    QTextCharFormat format;
    format.setFontFamily(family);
    m_format->mergeOnWordOrSelection(format);
    nodeCall(m_node, &LTextEffectNode::SetFontFamily, family);
}

void TextEdit::TextFontSizeChanged(uint size)
{
    const double points = QString::number(size).toDouble();
    if (points <= 0) {
        return;
    }
    QTextCharFormat format;
    format.setFontPointSize(points);
    m_format->mergeOnWordOrSelection(format);
    nodeCall(m_node, &LTextEffectNode::SetFontSize, int(size));
}

void TextEdit::TextColorChanged(uint color)
{
    m_textColor = QColor::fromRgb(color);
    m_toolBar->showTextColor(m_textColor);
    QTextCharFormat format;
    format.setForeground(m_textColor);
    m_format->mergeOnWordOrSelection(format);
}

void TextEdit::TextBackgroundColorChanged(uint color)
{
    QColor background = QColor::fromRgb(color);
    background.setAlpha(255);
    m_toolBar->showTextBackground(background);
    QTextCharFormat format;
    format.setBackground(background);
    m_format->mergeOnWordOrSelection(format);
}

void TextEdit::EditBackgroundColorChanged(uint color)
{
    m_toolBar->showEditorBackground(QColor::fromRgb(color));
}

void TextEdit::TextHAlignmentChanged(uint align)
{
    m_format->setAlignment(Qt::Alignment(int(align)));
    alignmentChanged(Qt::Alignment(int(align)));
    nodeCall(m_node, &LTextEffectNode::SetContentHAlign, int(align));
}

void TextEdit::TextVAlignmentChanged(uint align)
{
    m_toolBar->showVAlign(int(align));
    nodeCall(m_node, &LTextEffectNode::SetContentAlign, int(align));
    redraw();
}

void TextEdit::TextBoldFlagChanged(bool flag)
{
    m_toolBar->setChecked(QStringLiteral("actionTextBold"), flag);
    QTextCharFormat format;
    format.setFontWeight(flag ? QFont::Bold : QFont::Normal);
    m_format->mergeOnWordOrSelection(format);
}

void TextEdit::TextItalicFlagChanged(bool flag)
{
    m_toolBar->setChecked(QStringLiteral("actionTextItalic"), flag);
    QTextCharFormat format;
    format.setFontItalic(flag);
    m_format->mergeOnWordOrSelection(format);
}

void TextEdit::TextUnderlineFlagChanged(bool flag)
{
    m_toolBar->setChecked(QStringLiteral("actionTextUnderline"), flag);
    QTextCharFormat format;
    format.setFontUnderline(flag);
    m_format->mergeOnWordOrSelection(format);
}

void TextEdit::TextWordSpacingChanged(int value)
{
    if (m_singleLine) {
        return;
    }
    m_publisher->setLoaded(false);
    m_toolBar->showWordSpacing(qBound(0, value, MostWordSpacing));
    m_format->setLetterSpacing(lctrlsex::letterSpacing(value));
    m_publisher->setLoaded(true);
}

void TextEdit::TextLineSpacingChanged(int value)
{
    if (m_singleLine) {
        return;
    }
    m_publisher->setLoaded(false);
    const int percent = qMax(LeastLineSpacing, value);
    m_toolBar->showLineSpacing(percent);
    m_format->setLineHeight(percent);
    m_publisher->setLoaded(true);
}
