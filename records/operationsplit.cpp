#include "operationsplit.h"

#include "operationresult.h"

#include <vector>

namespace lctrlsex {

namespace {

/** Finds a text from left to right without ever going back, however often it nearly matches. */
class Finder
{
public:
    explicit Finder(const QString &wanted);

    /** Where it next occurs in @p text from @p from on; -1 when it does not. */
    [[nodiscard]] int next(const QString &text, int from) const;

private:
    const QString &m_wanted;
    /** For each length matched, the longest shorter length that is matched as well. */
    std::vector<int> m_fallbacks;
};

/** Up to this length going back costs less than the table does. */
constexpr int shortest = 4;

Finder::Finder(const QString &wanted)
    : m_wanted(wanted)
{
    if (wanted.size() <= shortest) {
        return;
    }
    m_fallbacks.assign(size_t(wanted.size()) + 1, 0);
    for (int i = 1, matched = 0; i < wanted.size(); ++i) {
        while (matched > 0 && wanted.at(i) != wanted.at(matched)) {
            matched = m_fallbacks[size_t(matched)];
        }
        matched += int(wanted.at(i) == wanted.at(matched));
        m_fallbacks[size_t(i) + 1] = matched;
    }
}

int Finder::next(const QString &text, int from) const
{
    if (m_wanted.size() <= shortest) {
        return text.indexOf(m_wanted, from);
    }
    for (int i = from, matched = 0; i < text.size(); ++i) {
        while (matched > 0 && text.at(i) != m_wanted.at(matched)) {
            matched = m_fallbacks[size_t(matched)];
        }
        matched += int(text.at(i) == m_wanted.at(matched));
        if (matched == m_wanted.size()) {
            return i + 1 - matched;
        }
    }
    return -1;
}

void append(const QString &text, int begin, int end, SplitText *parts)
{
    if (begin == end) {
        return;
    }
    if (!parts->ends.isEmpty()) {
        parts->joined += QLatin1Char('\n');
    }
    parts->joined.append(text.constData() + begin, end - begin);
    parts->ends.append(parts->joined.size());
}

bool isFull(const SplitText &parts)
{
    return parts.ends.size() > mostOperationElements || parts.joined.size() > longestOperationText;
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
    if (separator.isEmpty()) {
        for (int i = 0; i < text.size() && !isFull(parts); ++i) {
            append(text, i, i + 1, &parts);
        }
        return parts;
    }
    const Finder finder(separator);
    int begin = 0;
    for (int end = finder.next(text, 0); end >= 0 && !isFull(parts);
         end = finder.next(text, begin)) {
        append(text, begin, end, &parts);
        begin = end + separator.size();
    }
    if (!isFull(parts)) {
        append(text, begin, text.size(), &parts);
    }
    return parts;
}

} // namespace lctrlsex
