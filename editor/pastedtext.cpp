#include "pastedtext.h"

#include "htmlguard.h"

#include <QCoreApplication>
#include <QTextCursor>
#include <QTextDocument>

#include <memory>

namespace lctrlsex {

namespace {

/** Texts of this file, under one name for translators. */
struct PastedTextTexts
{
    Q_DECLARE_TR_FUNCTIONS(PastedText)
};

/** What a document keeps of one character; null when it keeps nothing. */
QChar kept(ushort unit)
{
    switch (unit) {
    case 0:
    case QChar::ObjectReplacementCharacter: // without its object it would show as a broken image
        return {};
    case '\r':
    case '\f':
    case 0x85: // next line
    case QChar::ParagraphSeparator:
        return QLatin1Char('\n');
    case '\v': // the line break of word processors
        return QChar::LineSeparator;
    case 0xfdd0: // Qt takes these two for the edges of a frame
    case 0xfdd1:
    case 0xfffe:
    case 0xffff:
        return QChar::ReplacementCharacter;
    default:
        return QChar(unit);
    }
}

/** Both units of a pair are kept, one alone is replaced. */
QString withoutOddCharacters(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const QChar next = i + 1 < text.size() ? text.at(i + 1) : QChar();
        if (c.isHighSurrogate() && next.isLowSurrogate()) {
            result += c;
            result += next;
            ++i;
        } else if (c.isSurrogate()) {
            result += QChar(QChar::ReplacementCharacter);
        } else if (c != QLatin1Char('\r') || next != QLatin1Char('\n')) {
            const QChar character = kept(c.unicode());
            if (!character.isNull()) {
                result += character;
            }
        }
    }
    return result;
}

} // namespace

QString storableText(const QString &text, bool singleLine)
{
    QString result = withoutOddCharacters(text);
    if (singleLine) {
        result.remove(QLatin1Char('\n')).remove(QChar(QChar::LineSeparator));
    }
    return result;
}

PastedText pastedText(const QString &text, bool singleLine)
{
    PastedText result;
    result.text = storableText(text, singleLine);
    const int lines =
        1 + result.text.count(QLatin1Char('\n')) + result.text.count(QChar(QChar::LineSeparator));
    if (result.text.size() > mostPastedCharacters) {
        result.refusal = PastedTextTexts::tr("The text was not inserted: it has %1 characters, and "
                                             "at most %2 can be inserted at once. Insert it in "
                                             "parts, or divide it into several items.")
                             .arg(result.text.size())
                             .arg(mostPastedCharacters);
    } else if (lines > mostPastedLines) {
        result.refusal = PastedTextTexts::tr("The text was not inserted: it has %1 lines, and at "
                                             "most %2 can be inserted at once. Insert it in parts, "
                                             "or divide it into several items.")
                             .arg(lines)
                             .arg(mostPastedLines);
    }
    if (!result.refusal.isEmpty()) {
        result.text.clear();
    }
    return result;
}

QString reopeningProblem(const QTextDocument &document)
{
    const GuardedHtml guarded = guardHtml(document.toHtml());
    return guarded.accepted ? QString() : guarded.reason + QLatin1Char(' ') + guarded.remedy;
}

QString reopeningProblemAfter(const QTextCursor &cursor,
                              const std::function<void(QTextCursor *)> &edit)
{
    const std::unique_ptr<QTextDocument> trial(cursor.document()->clone());
    QTextCursor there(trial.get());
    there.setPosition(cursor.anchor());
    there.setPosition(cursor.position(), QTextCursor::KeepAnchor);
    edit(&there);
    return reopeningProblem(*trial);
}

QString insertionProblem(const QTextCursor &cursor, const QString &text,
                         const QTextCharFormat &format)
{
    const QString problem =
        reopeningProblemAfter(cursor, [&](QTextCursor *there) { there->insertText(text, format); });
    if (problem.isEmpty()) {
        return {};
    }
    return PastedTextTexts::tr("The text of %1 characters was not inserted, because the document "
                               "could not be opened again: %2")
        .arg(text.size())
        .arg(problem);
}

} // namespace lctrlsex
