#pragma once

#include "typingstyle.h"

#include <QPointer>
#include <QTextEdit>

namespace lctrlsex {

struct KeyEdit;

/**
 * What the tool bar does to the document of a view. Each command is one undo step in an edit block,
 * or none when the document has it already; nothing happens when the view is gone.
 */
class FormatCommands
{
public:
    explicit FormatCommands(QTextEdit *view)
        : m_view(view)
    {}

    /** Merges @p format into the selection, or the word under the cursor, and the typing format. */
    void mergeOnWordOrSelection(const QTextCharFormat &format);

    /** Makes @p style the look in which text is typed from here on. */
    void setTypingFormat(const TypingStyle &style);
    /** The same with absolute letter spacing in pixels. */
    void setTypingFormat(const TypingStyle &style, qreal letterSpacing);

    /** Inserts @p text as plain text in @p style. */
    void insertText(const QString &text, const TypingStyle &style);

    /**
     * Makes the edit of a key when something else belongs to its step: in an empty paragraph a line
     * height in percent, unless @p lineHeight is 0, or a merge that is to follow. Else false, and
     * the key does it.
     */
    bool editByKey(const KeyEdit &edit, int lineHeight);

    /** Takes the background from the selection, or the word under the cursor. */
    void clearBackground();

    /** Aligns the paragraphs of the selection. */
    void setAlignment(Qt::Alignment align);

    /** Gives the whole document, and text typed next, absolute letter spacing in pixels. */
    void setLetterSpacing(qreal spacing);

    /** Gives the paragraphs of the selection a line height in percent. */
    void setLineHeight(int percent);

private:
    [[nodiscard]] QTextCursor wordOrSelection() const;

    QPointer<QTextEdit> m_view;
};

} // namespace lctrlsex
