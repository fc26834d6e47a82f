#include "formatdifference.h"

#include <QFont>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace lctrlsex {

namespace {

/** What stands for a property that is absent; invalid where the document or nobody decides. */
QVariant absent(int property)
{
    switch (property) {
    case QTextFormat::FontWeight:
        return int(QFont::Normal);
    case QTextFormat::FontItalic:
        return false;
    case QTextFormat::TextUnderlineStyle:
        return int(QTextCharFormat::NoUnderline);
    case QTextFormat::BlockAlignment:
        return int(Qt::AlignLeft);
    default:
        return QVariant();
    }
}

bool isNewTo(const QTextFormat &old, const QTextFormat &merged)
{
    const QMap<int, QVariant> properties = merged.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        const QVariant value = old.property(it.key());
        if ((value.isValid() ? value : absent(it.key())) != it.value()) {
            return true;
        }
    }
    return false;
}

bool isNewTo(const QTextBlock &block, int from, int to, const QTextCharFormat &format)
{
    if (block.length() == 1) { // what is typed there takes the format of the end before
        return block.position() > from && isNewTo(block.charFormat(), format);
    }
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const QTextCharFormat old = fragment.charFormat();
        if (fragment.position() < to && fragment.position() + fragment.length() > from &&
            (!old.isImageFormat() || format.hasProperty(QTextFormat::BackgroundBrush)) &&
            isNewTo(old, format)) {
            return true;
        }
    }
    return false;
}

} // namespace

bool isNewTo(const QTextCursor &cursor, const QTextCharFormat &format)
{
    const int from = cursor.selectionStart();
    const int to = cursor.selectionEnd();
    for (QTextBlock block = cursor.document()->findBlock(from);
         block.isValid() && block.position() <= to; block = block.next()) {
        if (isNewTo(block, from, to, format)) {
            return true;
        }
    }
    return false;
}

bool isNewTo(const QTextCursor &cursor, const QTextBlockFormat &format)
{
    for (QTextBlock block = cursor.document()->findBlock(cursor.selectionStart());
         block.isValid() && block.position() <= cursor.selectionEnd(); block = block.next()) {
        if (isNewTo(block.blockFormat(), format)) {
            return true;
        }
    }
    return false;
}

} // namespace lctrlsex
