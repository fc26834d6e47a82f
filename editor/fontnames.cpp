#include "fontnames.h"

#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QSet>

#include <algorithm>

namespace lctrlsex {

QStringList offeredFonts(const QString &folder)
{
    const QStringList patterns = {QStringLiteral("*.ttf"), QStringLiteral("*.TTF"),
                                  QStringLiteral("*.ttc")};
    QSet<QString> files;
    const auto entries = QDir(folder).entryInfoList(patterns, QDir::Files);
    for (const QFileInfo &file : entries) {
        files.insert(file.baseName());
    }
    QStringList offered;
    if (files.isEmpty()) {
        return offered; // asking the system is slow
    }
    const QStringList families = QFontDatabase().families();
    std::copy_if(families.cbegin(), families.cend(), std::back_inserter(offered),
                 [&files](const QString &family) { return files.contains(family); });
    std::sort(offered.begin(), offered.end(), [](const QString &left, const QString &right) {
        return QString::localeAwareCompare(left, right) < 0;
    });
    offered.removeDuplicates();
    return offered;
}

QStringList offeredSizes()
{
    QStringList sizes;
    for (int size = 5; size < 100; ++size) {
        sizes.append(QString::number(size));
    }
    for (int size = 100; size <= 490; size += 10) {
        sizes.append(QString::number(size));
    }
    return sizes;
}

} // namespace lctrlsex
