// The scanner of bind keys against the patterns that state their kinds.

#include "inputtext.h"
#include "table/bindkey.h"

#include <QRegularExpression>

#include <cstdlib>

using namespace lctrlsex;

namespace {

QRegularExpression pattern(const char *text)
{
    return QRegularExpression(QString::fromLatin1(text),
                              QRegularExpression::UseUnicodePropertiesOption);
}

/** By the patterns, of which the first that matches counts. */
BindKey literally(const QString &key)
{
    static const QRegularExpression start = pattern("^\\w");
    static const QRegularExpression records = pattern("\\.\\{([^\\}]+)\\}\\[]$");
    static const QRegularExpression record = pattern("\\.\\{([^\\}]+)\\}$");
    static const QRegularExpression table = pattern("([\\w]+)\\[\\]\\[\\]$");
    static const QRegularExpression value = pattern("([\\w]+)$");
    static const QRegularExpression array = pattern("([\\w]+)\\[]$");
    static const QRegularExpression entry = pattern("([\\w]+)(\\[[\\d]+\\])\\[]$");
    if (!start.match(key).hasMatch() || pattern("\\.\\.").match(key).hasMatch()) {
        return {};
    }
    if (const auto match = records.match(key); match.hasMatch()) {
        return {21, match.captured(1).split(QLatin1Char(','))};
    }
    if (const auto match = record.match(key); match.hasMatch()) {
        return {22, match.captured(1).split(QLatin1Char(','))};
    }
    if (table.match(key).hasMatch()) {
        return {23, {}};
    }
    if (const auto match = value.match(key); match.hasMatch()) {
        return {12, {match.captured(1)}};
    }
    if (const auto match = array.match(key); match.hasMatch()) {
        return {11, {match.captured(1)}};
    }
    if (const auto match = entry.match(key); match.hasMatch()) {
        return {13, {match.captured(1) + match.captured(2)}};
    }
    return {};
}

/** The patterns may know a later edition of Unicode. */
bool isOfThisUnicode(const QString &text)
{
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters) {
        if (QChar::category(character) == QChar::Other_NotAssigned) {
            return false;
        }
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString key = inputText(data, size);
    const BindKey found = classifyBindKey(key);
    if (key.size() > 256 || !isOfThisUnicode(key)) {
        return 0;
    }
    const BindKey expected = literally(key);
    if (found.kind != expected.kind || found.fields != expected.fields) {
        std::abort();
    }
    return 0;
}
