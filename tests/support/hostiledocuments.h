#pragma once

#include <QString>
#include <QStringList>

namespace lctrlsex::test {

/**
 * Names of the hostile documents: the files of tests/hostile/documents and those too large to be
 * files, which are made when they are asked for.
 */
[[nodiscard]] QStringList hostileDocumentNames();

/** The document of that name; null when there is none. */
[[nodiscard]] QString hostileDocument(const QString &name);

/**
 * File names that hostile documents mention as images, backgrounds and style sheets, absolute and
 * relative. None may ever be opened; "@CANARY@" in a document file stands for @p folder.
 */
[[nodiscard]] QStringList canaryFiles(const QString &folder);

/** Folder that "@CANARY@" stands for in hostileDocument(). */
[[nodiscard]] QString canaryFolder();

/** Harmless documents of about so many characters, of the kinds that people write. */
[[nodiscard]] QString harmlessParagraphs(int characters);
[[nodiscard]] QString harmlessTable(int characters);
[[nodiscard]] QString harmlessLines(int characters);

/** Markup without any order, the same for the same seed. */
[[nodiscard]] QString disorderlyDocument(unsigned seed);

} // namespace lctrlsex::test
