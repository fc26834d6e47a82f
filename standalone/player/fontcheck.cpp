#include "fontcheck.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QSet>
#include <QTextBlock>
#include <QTextDocument>

namespace player {

namespace {

/** Whoever misses more than that has other things to mend first, and each query is slow. */
constexpr int MostMissing = 20;
constexpr int MostSubstitutes = 8;

/** Names that mean whatever font of the kind there is. */
bool isGeneric(const QString &family)
{
    static const QSet<QString> names = {
        QStringLiteral("sans"),      QStringLiteral("sans serif"), QStringLiteral("sans-serif"),
        QStringLiteral("serif"),     QStringLiteral("mono"),       QStringLiteral("monospace"),
        QStringLiteral("system-ui"), QStringLiteral("cursive"),    QStringLiteral("fantasy")};
    return names.contains(family.toLower());
}

/** Calls @p visit with each run of text and its format. */
template <typename Visitor>
void forEachRun(const QTextDocument &document, Visitor visit)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            visit(it.fragment().text(), it.fragment().charFormat());
        }
    }
}

/** Formats, joiners and blanks have no picture of their own; an image stands for itself. */
bool needsGlyph(uint c)
{
    switch (QChar::category(c)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Separator_Space:
        return false;
    default:
        const bool isVariationSelector = (c >= 0xfe00 && c <= 0xfe0f) || c >= 0xe0100;
        return c != QChar::ObjectReplacementCharacter && !isVariationSelector;
    }
}

} // namespace

QStringList missingFamilies(const QTextDocument &document, const QString &itemFamily)
{
    const QFontDatabase database;
    QSet<QString> seen;
    QStringList missing;
    const auto check = [&](const QStringList &families) {
        const QString &wanted = families.constFirst();
        if (seen.contains(wanted) || missing.size() >= MostMissing) {
            return;
        }
        seen.insert(wanted);
        // A list of families names its own substitutes, so the first installed one is as meant.
        const auto end = families.begin() + qMin(families.size(), MostSubstitutes);
        const bool isThere = std::any_of(families.begin(), end, [&database](const QString &family) {
            return isGeneric(family) || database.hasFamily(family);
        });
        if (!isThere) {
            missing.append(wanted);
        }
    };
    if (!itemFamily.isEmpty()) {
        check({itemFamily});
    }
    forEachRun(document, [&check](const QString &text, const QTextCharFormat &format) {
        const QStringList families = format.fontFamilies().toStringList();
        const bool isImage = text.at(0) == QChar::ObjectReplacementCharacter;
        if (!isImage && (!families.isEmpty() || !format.fontFamily().isEmpty())) {
            check(families.isEmpty() ? QStringList(format.fontFamily()) : families);
        }
    });
    return missing;
}

QVector<uint> missingCharacters(const QTextDocument &document)
{
    QSet<QPair<QString, uint>> seen;
    QVector<uint> missing;
    forEachRun(document, [&](const QString &text, const QTextCharFormat &format) {
        const QFont font = format.font().resolve(document.defaultFont());
        const QFontMetrics metrics(font);
        const QVector<uint> characters = text.toUcs4();
        for (const uint c : characters) {
            const auto key = qMakePair(font.family(), c);
            if (!needsGlyph(c) || seen.contains(key)) {
                continue;
            }
            seen.insert(key);
            if (!metrics.inFontUcs4(c) && !missing.contains(c)) {
                missing.append(c);
            }
        }
    });
    return missing;
}

} // namespace player
