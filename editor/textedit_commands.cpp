#include "colorchoice.h"
#include "edittoolbar.h"
#include "formatcommands.h"
#include "lappconfig.h"
#include "lrichviewedit.h"
#include "ltexteffectnode.h"
#include "nodecall.h"
#include "nodepublisher.h"
#include "pastedtext.h"
#include "table/fieldformat.h"
#include "textedit.h"

#include <QComboBox>

using lctrlsex::nodeCall;

namespace {

constexpr int MostWordSpacing = 99;
constexpr int AsGoodAsTyped = 100; // characters; what they make too long is noticed as typing is

/** Whether @p value is one that the word spacing box can show. */
bool isWordSpacing(int value)
{
    return value >= 0 && value <= MostWordSpacing;
}

} // namespace

// Commands of the tool bar

void TextEdit::textFamily(const QString &family)
{
    // A family that is not offered is shown with a mark; what it marks is meant.
    const bool isFromBox = qobject_cast<QComboBox *>(sender()) != nullptr;
    TextFontNameChanged(isFromBox ? m_toolBar->family() : family);
}

void TextEdit::textSize(const QString &size)
{
    bool isNumber = false;
    const double points = size.toDouble(&isNumber);
    if (isNumber && points > 0) {
        TextFontSizeChanged(uint(points));
    }
}

void TextEdit::textBold()
{
    TextBoldFlagChanged(m_toolBar->isChecked(QStringLiteral("actionTextBold")));
}

void TextEdit::textItalic()
{
    TextItalicFlagChanged(m_toolBar->isChecked(QStringLiteral("actionTextItalic")));
}

void TextEdit::textUnderline()
{
    TextUnderlineFlagChanged(m_toolBar->isChecked(QStringLiteral("actionTextUnderline")));
}

QColor TextEdit::askColor(const QString &title, const QColor &current)
{
    const QPointer<TextEdit> self = this;
    const int attachment = m_attachment;
    const QColor chosen = lctrlsex::chooseColor(this, title, current);
    // The host may have deleted the editor or the node, or taken another one, meanwhile.
    return self != nullptr && isAttached(attachment) ? chosen : QColor();
}

void TextEdit::textColor()
{
    const QColor chosen = askColor(tr("Text Color"), m_view->textColor());
    if (chosen.isValid()) {
        TextColorChanged(chosen.rgb());
    }
}

void TextEdit::TextBgcolor()
{
    const QColor chosen = askColor(tr("Text Background Color"), m_toolBar->textBackground());
    if (chosen.isValid()) {
        TextBackgroundColorChanged(chosen.rgb());
    }
}

void TextEdit::ClearTextBgcolor()
{
    m_format->clearBackground();
}

void TextEdit::EditorBgColor()
{
    const QColor chosen = askColor(tr("Editor Background Color"), m_toolBar->editorBackground());
    if (!chosen.isValid()) {
        return;
    }
    const int attachment = m_attachment;
    nodeCall(m_node, &LTextEffectNode::SetEditBgColor, LAppConfig::ColorToInt(chosen));
    if (isAttached(attachment)) {
        showGround();
        redraw();
    }
}

void TextEdit::TransBgColor()
{
    const int attachment = m_attachment;
    nodeCall(m_node, &LTextEffectNode::SetTransBgColor,
             m_toolBar->isChecked(QStringLiteral("actionTransBgColor")));
    if (isAttached(attachment)) {
        showGround();
        redraw();
    }
}

void TextEdit::textAlign(QAction *action)
{
    TextHAlignmentChanged(uint(lctrlsex::EditToolBar::alignOf(action)));
}

void TextEdit::textVAlign(QAction *action)
{
    TextVAlignmentChanged(uint(lctrlsex::EditToolBar::alignOf(action)));
}

void TextEdit::alignmentChanged(Qt::Alignment align)
{
    m_toolBar->showAlign(align);
}

void TextEdit::UseHollow()
{
    nodeCall(m_node, &LTextEffectNode::SetUseHollow,
             m_toolBar->isChecked(QStringLiteral("actionUseHollow")) ? 1 : 0);
    redraw();
}

void TextEdit::StrokeColor()
{
    const QColor chosen = askColor(tr("Stroke Color"), m_toolBar->strokeColor());
    if (!chosen.isValid()) {
        return;
    }
    const int attachment = m_attachment;
    nodeCall(m_node, &LTextEffectNode::SetStrokeColor, LAppConfig::ColorToInt(chosen));
    if (isAttached(attachment)) {
        nodeCall(m_node, &LTextEffectNode::SetUseStroke, 1);
    }
    if (isAttached(attachment)) {
        SetStrokeColorButtonImage(chosen);
        redraw();
    }
}

void TextEdit::ClearStrokeColor()
{
    nodeCall(m_node, &LTextEffectNode::SetUseStroke, 0);
    redraw();
}

void TextEdit::SetStrokeColorButtonImage(const QColor &color)
{
    m_toolBar->showStrokeColor(color);
}

void TextEdit::WordSpacingChanged(int value)
{
    const int attachment = m_attachment;
    nodeCall(m_node, &LTextEffectNode::SetFontSpace, value);
    if (attachment == m_attachment) { // without a node the view follows all the same
        TextWordSpacingChanged(value);
    }
}

void TextEdit::LineSpacingChanged(int value)
{
    TextLineSpacingChanged(value);
}

void TextEdit::ON_VerticalStretch()
{
    const int attachment = m_attachment;
    const bool fills = nodeCall(m_node, &LTextEffectNode::GetTableFillArea);
    if (isAttached(attachment)) {
        m_node->SetTableFillArea(!fills);
    }
    if (isAttached(attachment)) {
        copyTableSettings();
        redraw();
    }
}

// Focus, clipboard, typing

void TextEdit::SetEditFocus()
{
    m_view->setFocus();
}

void TextEdit::EditFocusIn()
{
    m_view->setFocus();
}

void TextEdit::EditFocusOut()
{
    m_view->clearFocus();
}

void TextEdit::CopyAction()
{
    m_view->copy();
}

void TextEdit::PasteAction()
{
    m_view->paste(); // comes back as InsertCopyText()
}

void TextEdit::InsertCopyText(const QString &text)
{
    if (m_view->isReadOnly()) {
        return;
    }
    // Kept on purpose because screens are dark: pasted text takes the tool bar's look in white.
    const lctrlsex::TypingStyle style = m_toolBar->typingStyle(Qt::white);
    lctrlsex::PastedText pasted = lctrlsex::pastedText(text, m_singleLine);
    if (pasted.refusal.isEmpty() && pasteCells(text, style.toFormat())) {
        return;
    }
    if (pasted.text.size() > AsGoodAsTyped) {
        pasted.refusal =
            lctrlsex::insertionProblem(m_view->textCursor(), pasted.text, style.toFormat());
    }
    if (!pasted.refusal.isEmpty()) {
        showRefusal(pasted.refusal);
    } else if (!pasted.text.isEmpty()) {
        m_format->insertText(pasted.text, style);
    }
}

void TextEdit::CursorPositionFontStatusMarked()
{
    const QTextCursor cursor = m_view->textCursor();
    m_toolBar->showFormat(lctrlsex::toolbarFormatAt(cursor));
    if (!cursor.hasSelection() && cursor.charFormat().isImageFormat()) {
        m_view->setCurrentCharFormat(lctrlsex::formatBehind(cursor.charFormat()));
    }
}

/** Before a key reaches an emptied document: the tool bar's look, in white, with its spacing. */
void TextEdit::rebuildTypingFormat()
{
    m_textColor = Qt::white;
    const lctrlsex::TypingStyle style = m_toolBar->typingStyle(m_textColor);
    m_toolBar->showTextColor(m_textColor);
    if (m_singleLine) {
        m_format->setTypingFormat(style);
        return;
    }
    // Kept on purpose because it differs from the spacing control: an integer eighth here.
    const int value = m_toolBar->wordSpacing();
    const int spacing = value < 0 ? value / 8 : isWordSpacing(value) ? value : 0;
    m_format->setTypingFormat(style, spacing);
}

/** After a change left an invisible format behind: the tool bar's look in the current colour. */
void TextEdit::restoreTypingFormat()
{
    m_toolBar->showTextColor(m_textColor);
    m_format->setTypingFormat(m_toolBar->typingStyle(m_textColor));
}
