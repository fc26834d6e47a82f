#include "bindkey.h"

#include <QStringView>

namespace lctrlsex {

namespace {

/** The character of any plane that ends before @p end. */
uint characterBefore(QStringView text, qsizetype end)
{
    const QChar last = text.at(end - 1);
    return last.isLowSurrogate() && end > 1 ? QChar::surrogateToUcs4(text.at(end - 2), last)
                                            : last.unicode();
}

bool isWordCharacter(uint character)
{
    return character == '_' || QChar::isLetterOrNumber(character);
}

/** The part of @p text at its end of which every character is @p of that sort. */
template <class Sort>
QStringView lastRun(QStringView text, Sort of)
{
    qsizetype begin = text.size();
    while (begin > 0) {
        const uint character = characterBefore(text, begin);
        if (!of(character)) {
            break;
        }
        begin -= QChar::requiresSurrogates(character) ? 2 : 1;
    }
    return text.mid(begin);
}

QStringView lastWord(QStringView text)
{
    return lastRun(text, isWordCharacter);
}

bool startsWithWord(QStringView text)
{
    const bool isPair = text.size() > 1 && text.front().isHighSurrogate();
    return !text.isEmpty() && isWordCharacter(characterBefore(text, isPair ? 2 : 1));
}

/** What stands between ".{" and the "}" that ends @p text; empty when it does not end so. */
QStringView lastBraces(QStringView text)
{
    if (!text.endsWith(QLatin1Char('}'))) {
        return {};
    }
    const qsizetype end = text.size() - 1;
    // The first opening that no other "}" parts from the end counts.
    const qsizetype other = text.left(end).lastIndexOf(QLatin1Char('}'));
    const qsizetype opening = text.left(end).indexOf(QStringView(u".{"), other + 1);
    return opening < 0 ? QStringView() : text.mid(opening + 2, end - opening - 2);
}

/** The word with the index in brackets that end @p text; empty when it does not end so. */
QStringView lastIndexedWord(QStringView text)
{
    if (!text.endsWith(QLatin1Char(']'))) {
        return {};
    }
    const QStringView inner = text.chopped(1);
    const QStringView digits =
        lastRun(inner, [](uint character) { return QChar::isDigit(character); });
    const QStringView before = inner.chopped(digits.size());
    if (digits.isEmpty() || !before.endsWith(QLatin1Char('['))) {
        return {};
    }
    const QStringView word = lastWord(before.chopped(1));
    return word.isEmpty() ? QStringView() : text.mid(before.size() - 1 - word.size());
}

BindKey withFields(int kind, QStringView fields)
{
    return {kind, fields.toString().split(QLatin1Char(','))};
}

} // namespace

BindKey classifyBindKey(const QString &key)
{
    QStringView text(key);
    if (!startsWithWord(text) || key.contains(QLatin1String("..")) || !key.isValidUtf16()) {
        return {};
    }
    if (text.endsWith(QLatin1Char('\n'))) {
        text.chop(1);
    }
    const bool isList = text.endsWith(QStringView(u"[]"));
    const QStringView owner = isList ? text.chopped(2) : text;
    if (const QStringView braces = lastBraces(owner); !braces.isEmpty()) {
        return withFields(isList ? 21 : 22, braces);
    }
    if (isList && owner.endsWith(QStringView(u"[]")) && !lastWord(owner.chopped(2)).isEmpty()) {
        return {23, {}};
    }
    if (const QStringView word = lastWord(owner); !word.isEmpty()) {
        return {isList ? 11 : 12, {word.toString()}};
    }
    const QStringView indexed = isList ? lastIndexedWord(owner) : QStringView();
    return indexed.isEmpty() ? BindKey() : BindKey{13, {indexed.toString()}};
}

bool isBindable(int kind)
{
    return (kind >= 11 && kind <= 13) || (kind >= 21 && kind <= 23);
}

} // namespace lctrlsex
