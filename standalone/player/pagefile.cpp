#include "pagefile.h"

#include "replacefile.h"

#include <QBuffer>
#include <QImageWriter>

namespace player {

namespace {

constexpr int LongestStem = 80;

/** Letters of every script stay; what is special to shells or file systems goes. */
QString fileStem(const QString &name)
{
    QString stem;
    for (const QChar c : name.normalized(QString::NormalizationForm_C).trimmed()) {
        const bool isPlain = c.isLetterOrNumber() || c.isMark() || c.isSurrogate() ||
                             c == QLatin1Char('-') || c == QLatin1Char('_') ||
                             c == QLatin1Char(' ');
        stem += isPlain ? c : QLatin1Char('_');
    }
    stem.truncate(LongestStem);
    if (stem.size() == LongestStem && stem.at(LongestStem - 1).isHighSurrogate()) {
        stem.chop(1);
    }
    return stem.isEmpty() ? QStringLiteral("item") : stem;
}

} // namespace

QString PageNames::stemFor(const QString &name)
{
    const QString stem = fileStem(name);
    QString candidate = stem;
    // File systems that ignore case must not lose a page either.
    for (int n = 2; m_taken.contains(candidate.toCaseFolded()); ++n) {
        candidate = stem + QLatin1Char('-') + QString::number(n);
    }
    m_taken.insert(candidate.toCaseFolded());
    return candidate;
}

QString writePageFile(const QImage &image, const QString &fileName)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "png");
    return writer.write(image) ? replaceFile(fileName, bytes) : writer.errorString();
}

} // namespace player
