#include "formatcommands.h"

#include "formatdifference.h"
#include "keyedit.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVector>

namespace lctrlsex {

namespace {

struct Stretch
{
    int from;
    int to;
    QTextCharFormat format;
};

/** The stretches with a background between two positions, with what is left without it. */
QVector<Stretch> withoutBackground(const QTextDocument &document, int from, int to)
{
    QVector<Stretch> found;
    for (QTextBlock block = document.findBlock(from); block.isValid() && block.position() < to;
         block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            QTextCharFormat format = fragment.charFormat();
            const int start = qMax(from, fragment.position());
            const int end = qMin(to, fragment.position() + fragment.length());
            if (start < end && format.hasProperty(QTextFormat::BackgroundBrush)) {
                format.clearBackground();
                found.append({start, end, format});
            }
        }
    }
    return found;
}

} // namespace

QTextCursor FormatCommands::wordOrSelection() const
{
    QTextCursor cursor = m_view->textCursor();
    if (!cursor.hasSelection()) {
        cursor.select(QTextCursor::WordUnderCursor);
    }
    return cursor;
}

void FormatCommands::mergeOnWordOrSelection(const QTextCharFormat &format)
{
    if (m_view == nullptr) {
        return;
    }
    QTextCursor cursor = wordOrSelection();
    if (isNewTo(cursor, format)) {
        cursor.mergeCharFormat(format);
    }
    if (m_view != nullptr && !m_view->textCursor().hasSelection()) {
        m_view->mergeCurrentCharFormat(format); // a selection has it already: no second undo step
    }
}

void FormatCommands::setTypingFormat(const TypingStyle &style)
{
    if (m_view != nullptr) {
        m_view->mergeCurrentCharFormat(style.toFormat());
        m_view->setFocus();
    }
}

void FormatCommands::setTypingFormat(const TypingStyle &style, qreal letterSpacing)
{
    if (m_view != nullptr) {
        QTextCharFormat format = style.toFormat();
        format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        format.setFontLetterSpacing(letterSpacing);
        m_view->mergeCurrentCharFormat(format);
        m_view->setFocus();
    }
}

void FormatCommands::insertText(const QString &text, const TypingStyle &style)
{
    if (m_view == nullptr || text.isEmpty()) {
        return;
    }
    QTextCursor cursor = m_view->textCursor();
    cursor.beginEditBlock(); // a merge can join no other step
    cursor.insertText(text, style.toFormat());
    cursor.endEditBlock();
    m_view->setTextCursor(cursor);
    m_view->ensureCursorVisible();
    m_view->setFocus();
}

bool FormatCommands::editByKey(const KeyEdit &edit, int lineHeight)
{
    if (m_view == nullptr) {
        return false;
    }
    QTextCursor cursor = m_view->textCursor();
    QTextBlockFormat format;
    format.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
    const bool isHeightNew =
        lineHeight > 0 && cursor.block().length() == 1 && isNewTo(cursor, format);
    if (!isHeightNew && !edit.leavesLookAlikes(cursor)) {
        return false;
    }
    cursor.beginEditBlock();
    if (isHeightNew) {
        cursor.mergeBlockFormat(format);
    }
    edit.apply(&cursor);
    cursor.endEditBlock();
    m_view->setTextCursor(cursor);
    m_view->ensureCursorVisible();
    return true;
}

void FormatCommands::clearBackground()
{
    if (m_view == nullptr) {
        return;
    }
    QTextCursor cursor = wordOrSelection();
    const auto stretches =
        withoutBackground(*m_view->document(), cursor.selectionStart(), cursor.selectionEnd());
    if (!stretches.isEmpty()) {
        QTextCursor edit(m_view->document());
        edit.beginEditBlock();
        for (const Stretch &stretch : stretches) {
            edit.setPosition(stretch.from);
            edit.setPosition(stretch.to, QTextCursor::KeepAnchor);
            edit.setCharFormat(stretch.format);
        }
        edit.endEditBlock();
    }
    if (m_view != nullptr && !m_view->textCursor().hasSelection()) {
        QTextCharFormat typing = m_view->currentCharFormat();
        typing.clearBackground();
        m_view->setCurrentCharFormat(typing);
    }
}

void FormatCommands::setAlignment(Qt::Alignment align)
{
    if (m_view == nullptr) {
        return;
    }
    QTextBlockFormat format;
    format.setAlignment(align);
    if (isNewTo(m_view->textCursor(), format)) {
        m_view->setAlignment(align);
    }
}

void FormatCommands::setLetterSpacing(qreal spacing)
{
    if (m_view == nullptr) {
        return;
    }
    QTextCharFormat format;
    format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
    format.setFontLetterSpacing(spacing);
    // One merge over the whole: a change for each fragment would lay out as often.
    QTextCursor cursor(m_view->document());
    cursor.select(QTextCursor::Document);
    if (isNewTo(cursor, format)) {
        cursor.mergeCharFormat(format);
    }
    if (m_view != nullptr && !m_view->textCursor().hasSelection()) {
        m_view->mergeCurrentCharFormat(format);
    }
}

void FormatCommands::setLineHeight(int percent)
{
    if (m_view == nullptr) {
        return;
    }
    QTextCursor cursor = m_view->textCursor();
    QTextBlockFormat format;
    format.setLineHeight(percent, QTextBlockFormat::ProportionalHeight);
    if (isNewTo(cursor, format)) {
        cursor.mergeBlockFormat(format);
    }
}

} // namespace lctrlsex
