#include "keyedit.h"

#include "charformatstyle.h"

#include <QKeyEvent>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace lctrlsex {

namespace {

constexpr ushort FrameStart = 0xfdd0;
constexpr ushort FrameEnd = 0xfdd1;

/** Whether the character at @p position ends a paragraph, or is none. */
bool isEnd(const QTextDocument &document, int position)
{
    const QChar character = document.characterAt(position);
    return position < 0 || character.isNull() || character == QChar::ParagraphSeparator ||
           character == QChar(FrameStart) || character == QChar(FrameEnd);
}

QTextCharFormat formatOf(const QTextCursor &cursor, int position)
{
    QTextCursor behind(cursor.document());
    behind.setPosition(position + 1);
    return behind.charFormat();
}

/** Of what is typed at @p cursor: that of the text there, but nothing of an image or a cell. */
QTextCharFormat typedFormat(const QTextCursor &cursor)
{
    QTextCharFormat format = cursor.charFormat();
    format.clearProperty(QTextFormat::ObjectType);
    return format;
}

bool isToMerge(const QTextCharFormat &left, const QTextCharFormat &right)
{
    return left != right && areFormatsEqual(left, right);
}

/** Whether the key would be taken for something else than a deletion, or hits a table's border. */
bool isDeletable(const QTextCursor &cursor, const KeyEdit &edit)
{
    const QTextDocument &document = *cursor.document();
    if (edit.from < 0 || edit.to <= edit.from || document.characterAt(edit.from).isNull() ||
        edit.to >= document.characterCount()) {
        return false;
    }
    if (!isEnd(document, edit.from)) {
        return !document.characterAt(edit.from).isSurrogate();
    }
    return document.characterAt(edit.from) == QChar::ParagraphSeparator &&
           cursor.currentList() == nullptr && cursor.blockFormat().indent() == 0;
}

KeyEdit deletionOf(const QKeyEvent &key, const QTextCursor &cursor)
{
    KeyEdit edit;
    edit.from = edit.to = cursor.position();
    if (key.key() == Qt::Key_Backspace) {
        --edit.from;
    } else {
        QTextCursor next = cursor;
        next.movePosition(QTextCursor::NextCharacter);
        edit.to = next.position();
    }
    return isDeletable(cursor, edit) ? edit : KeyEdit();
}

} // namespace

KeyEdit keyEditOf(const QKeyEvent &key, const QTextCursor &cursor)
{
    KeyEdit edit;
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier && modifiers != Qt::ShiftModifier) {
        return edit;
    }
    switch (key.key()) {
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return modifiers == Qt::NoModifier ? deletionOf(key, cursor) : edit;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (modifiers == Qt::NoModifier && cursor.currentList() == nullptr) {
            edit.text = QLatin1Char('\n');
        }
        return edit;
    default:
        if (!key.text().isEmpty() && key.text().at(0).isPrint()) {
            edit.text = key.text();
        }
        return edit;
    }
}

bool KeyEdit::leavesLookAlikes(const QTextCursor &cursor) const
{
    const QTextDocument &document = *cursor.document();
    if (text == QLatin1String("\n")) {
        return false;
    }
    const int left = (text.isEmpty() ? from : cursor.position()) - 1;
    const int right = text.isEmpty() ? to : cursor.position();
    const bool hasLeft = !isEnd(document, left);
    const bool hasRight = !isEnd(document, right);
    if (text.isEmpty()) {
        return hasLeft && hasRight && isToMerge(formatOf(cursor, left), formatOf(cursor, right));
    }
    const QTextCharFormat typed = typedFormat(cursor);
    return (hasLeft && isToMerge(formatOf(cursor, left), typed)) ||
           (hasRight && isToMerge(typed, formatOf(cursor, right)));
}

void KeyEdit::apply(QTextCursor *cursor) const
{
    const QTextCharFormat typed = typedFormat(*cursor);
    cursor->beginEditBlock();
    if (!text.isEmpty()) {
        cursor->insertText(text, typed);
    } else {
        cursor->setPosition(from);
        cursor->setPosition(to, QTextCursor::KeepAnchor);
        cursor->removeSelectedText();
    }
    cursor->endEditBlock();
}

} // namespace lctrlsex
