#include "behindtable.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

namespace lctrlsex {

namespace {

const QLatin1String TableEnd("</table>");

/** The first paragraph behind the one table; invalid when the document is another one. */
QTextBlock firstBehindTable(const QTextDocument &document)
{
    const QList<QTextFrame *> frames = document.rootFrame()->childFrames();
    const auto *const table =
        frames.size() == 1 ? qobject_cast<QTextTable *>(frames.first()) : nullptr;
    return table != nullptr ? document.findBlock(table->lastPosition() + 1) : QTextBlock();
}

/** How many blank paragraphs there are from @p block on; 0 when no text comes behind them. */
int blanksFrom(QTextBlock block)
{
    int count = 0;
    for (; block.isValid() && block.length() == 1; block = block.next()) {
        ++count;
    }
    return block.isValid() ? count : 0;
}

int blanksWritten(const QString &html)
{
    const QLatin1String blank("<p style=\"-qt-paragraph-type:empty;");
    const QLatin1String end("</p>");
    int count = 0;
    int at = html.lastIndexOf(TableEnd) + TableEnd.size();
    for (;; ++count) {
        while (at < html.size() && html.at(at).isSpace()) {
            ++at;
        }
        const int next = html.midRef(at).startsWith(blank) ? html.indexOf(end, at) : -1;
        if (next < 0) {
            return count;
        }
        at = next + end.size();
    }
}

} // namespace

QTextBlock unwrittenBlank(const QTextDocument &document)
{
    const QTextBlock first = firstBehindTable(document);
    return blanksFrom(first) > 0 ? first : QTextBlock();
}

QString withParagraphBehindTable(const QString &html, const QString &paragraph)
{
    const int at = html.lastIndexOf(TableEnd);
    return at < 0 ? html : QString(html).insert(at + TableEnd.size(), paragraph);
}

void removeUnwrittenBlank(QTextDocument *document, const QString &html)
{
    const QTextBlock first = firstBehindTable(*document);
    const int blanks = blanksFrom(first);
    if (blanks == 0 || blanks != blanksWritten(html) + 1) {
        return;
    }
    const QTextBlockFormat format = first.next().blockFormat();
    const QTextCharFormat letters = first.next().charFormat();
    QTextCursor cursor(first);
    cursor.deleteChar();
    cursor.setBlockFormat(format);
    cursor.setBlockCharFormat(letters);
}

} // namespace lctrlsex
