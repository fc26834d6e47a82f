#pragma once

#include <QFont>
#include <QStringList>
#include <QVector>

class QTextDocument;

namespace player {

/** The font families that @p document asks for and this machine lacks, each once, in order. */
[[nodiscard]] QStringList missingFamilies(const QTextDocument &document);

/** Characters that no installed font can show, each once, in order of appearance. */
[[nodiscard]] QVector<uint> missingCharacters(const QTextDocument &document);

} // namespace player
