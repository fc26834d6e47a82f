#pragma once

#include <QFont>
#include <QStringList>
#include <QVector>

class QTextDocument;

namespace player {

/**
 * The font families that @p document, or the item as a whole by @p itemFamily, asks for and this
 * machine lacks, each once, in order, the first twenty of them. Text that asks for none is as meant
 * in any font.
 */
[[nodiscard]] QStringList missingFamilies(const QTextDocument &document, const QString &itemFamily);

/** Characters that no installed font can show, each once, in order of appearance. */
[[nodiscard]] QVector<uint> missingCharacters(const QTextDocument &document);

} // namespace player
