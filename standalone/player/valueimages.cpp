#include "valueimages.h"

#include "table/fieldimages.h"

#include <QTextDocument>
#include <QUrl>

namespace player {

using namespace lctrlsex;

static QString imageName(int index)
{
    return QStringLiteral("data://bindKey/values/%1.png").arg(index);
}

QString ValueImages::nameOf(const QString &text, const QString &style)
{
    const QString key = style + QChar(0) + text;
    const auto known = m_indexes.constFind(key);
    if (known != m_indexes.constEnd()) {
        return imageName(*known);
    }
    m_indexes.insert(key, m_wanted.size());
    m_wanted.append({text, style});
    return imageName(m_wanted.size() - 1);
}

bool ValueImages::moveTo(QTextDocument *document)
{
    const bool hasImages = !m_wanted.isEmpty();
    for (int i = 0; i < m_wanted.size(); ++i) {
        const Wanted &wanted = m_wanted.at(i);
        document->addResource(
            QTextDocument::ImageResource, QUrl(imageName(i)),
            drawField(wanted.text, FieldStyle::fromString(wanted.style), false, m_antialias));
    }
    m_wanted.clear();
    m_indexes.clear();
    return hasImages;
}

} // namespace player
