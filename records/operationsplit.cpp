#include "operationsplit.h"

#include "operationresult.h"

#include <QVarLengthArray>

#include <algorithm>

namespace lctrlsex {

namespace {

/** By length matched: how much of @p wanted is still matched when the next character is another. */
QVarLengthArray<int, 16> fallbacksOf(const QString &wanted)
{
    QVarLengthArray<int, 16> fallbacks(wanted.size());
    fallbacks[0] = -1;
    for (int i = 1, matched = 0; i < wanted.size(); ++i, ++matched) {
        const bool isHopeless = wanted.at(i) == wanted.at(matched);
        fallbacks[i] = isHopeless ? fallbacks[matched] : matched;
        while (matched >= 0 && wanted.at(i) != wanted.at(matched)) {
            matched = fallbacks[matched];
        }
    }
    return fallbacks;
}

/** Appends a part; false when there are too many then. */
bool append(const QString &text, int begin, int end, SplitText *parts)
{
    if (!parts->ends.isEmpty()) {
        parts->joined += QLatin1Char('\n');
    }
    parts->joined.append(text.constData() + begin, end - begin);
    parts->ends.append(parts->joined.size());
    return parts->ends.size() <= mostOperationElements &&
           parts->joined.size() <= longestOperationText;
}

} // namespace

QString unescapedSeparator(const QString &separator)
{
    if (!separator.contains(QLatin1Char('\\'))) {
        return separator;
    }
    const QString escapes = QStringLiteral("nrt\\");
    const QString meanings = QStringLiteral("\n\r\t\\");
    QString result;
    for (int i = 0; i < separator.size(); ++i) {
        const bool isEscape = separator.at(i) == QLatin1Char('\\') && i + 1 < separator.size();
        const int escape = isEscape ? escapes.indexOf(separator.at(i + 1)) : -1;
        result += escape < 0 ? separator.at(i) : meanings.at(escape);
        i += int(escape >= 0);
    }
    return result;
}

SplitText splitText(const QString &text, const QString &separator)
{
    SplitText parts;
    parts.joined.reserve(std::min(text.size(), longestOperationText));
    if (separator.isEmpty()) {
        for (int i = 0; i < text.size() && append(text, i, i + 1, &parts); ++i) {
        }
        return parts;
    }
    // Never goes back in the text, however often it nearly matches: indexOf() does.
    const QVarLengthArray<int, 16> fallbacks = fallbacksOf(separator);
    const QChar *const characters = text.constData();
    const QChar *const wanted = separator.constData();
    const int size = text.size();
    const int whole = separator.size();
    int begin = 0;
    for (int i = 0, matched = 0; i < size; ++i) {
        if (matched == 0 && characters[i] != *wanted) {
            continue;
        }
        while (matched >= 0 && characters[i] != wanted[matched]) {
            matched = fallbacks[matched];
        }
        if (++matched == whole) {
            const int end = i + 1 - whole;
            if (begin != end && !append(text, begin, end, &parts)) {
                return parts;
            }
            begin = i + 1;
            matched = 0;
        }
    }
    if (begin != size) {
        append(text, begin, size, &parts);
    }
    return parts;
}

} // namespace lctrlsex
