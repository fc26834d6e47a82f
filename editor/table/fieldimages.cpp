#include "fieldimages.h"

#include "documentsetup.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QUrl>

#include <algorithm>

namespace lctrlsex {

namespace {

constexpr int MostCharacters = 1000;
constexpr int WidestImage = 16384;
constexpr int MostPixels = 8 * 1000 * 1000;
constexpr qreal DimmedOpacity = 0.5;

/** One line of @p text: a break becomes a blank, the rest is cut. */
QString oneLine(const QString &text)
{
    QString line = text.left(MostCharacters);
    if (line.size() < text.size() && line.at(line.size() - 1).isHighSurrogate()) {
        line.chop(1);
    }
    line.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (QChar &character : line) {
        const bool isBreak = character == QChar::LineSeparator ||
                             character == QChar::ParagraphSeparator || character < QLatin1Char(' ');
        if (isBreak) {
            character = QLatin1Char(' ');
        }
    }
    return line;
}

QFont fontOf(const TypingStyle &style, bool antialias)
{
    QFont font(style.family);
    font.setPixelSize(fieldPixelSize(style));
    font.setItalic(style.italic);
    font.setUnderline(style.underline);
    font.setWeight(style.bold ? QFont::Bold : QFont::Normal);
    if (!antialias) {
        font.setStyleStrategy(QFont::NoAntialias);
    }
    return font;
}

/** The size of a line of text, as high as its font whatever letters are in it. */
QSize lineSize(const QString &line, const QFontMetrics &metrics)
{
    const QRect ink = metrics.tightBoundingRect(line);
    const int height = qMax(1, metrics.ascent() + metrics.descent());
    const int width = qMax(metrics.horizontalAdvance(line), ink.right() + 1);
    return {qBound(1, width, qMin(WidestImage, MostPixels / height)), height};
}

} // namespace

QImage drawField(const QString &text, const FieldStyle &style, bool isDimmed, bool antialias)
{
    const QString line = oneLine(text);
    const QFont font = fontOf(style.text, antialias);
    const QFontMetrics metrics(font);
    QImage image(lineSize(line, metrics), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return image;
    }
    image.fill(style.background.isValid() ? style.background : QColor(Qt::transparent));
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(style.text.color.isValid() ? style.text.color : QColor(Qt::white));
    painter.setOpacity(isDimmed ? DimmedOpacity : 1);
    painter.drawText(0, metrics.ascent(), line);
    return image;
}

namespace {

/** Whether both places are laid out again together: a table is always laid out as a whole. */
bool belongTogether(const QTextDocument &document, int position, int other)
{
    const QTextFrame *frame = document.frameAt(position);
    return (frame != document.rootFrame() && frame == document.frameAt(other)) ||
           document.findBlock(position) == document.findBlock(other);
}

/** The keys that only one of both has, or with another text. */
QSet<QString> differences(const QMap<QString, QString> &before, const QMap<QString, QString> &now)
{
    QSet<QString> keys;
    auto old = before.cbegin();
    auto fresh = now.cbegin();
    while (old != before.cend() || fresh != now.cend()) {
        const bool isGone =
            fresh == now.cend() || (old != before.cend() && old.key() < fresh.key());
        const bool isNew = !isGone && (old == before.cend() || fresh.key() < old.key());
        if (isGone || isNew || *old != *fresh) {
            keys.insert(isNew ? fresh.key() : old.key());
        }
        old += isNew ? 0 : 1;
        fresh += isGone ? 0 : 1;
    }
    return keys;
}

} // namespace

QVector<FieldImages::Found> FieldImages::fieldsOf(const QTextDocument &document)
{
    QVector<Found> fields;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (fragment.isValid() && isField(fragment.charFormat())) {
                const QTextImageFormat format = fragment.charFormat().toImageFormat();
                fields.append({fragment.position(), fragment.length(), format.name(),
                               format.stringProperty(FieldStyleProperty)});
            }
        }
    }
    return fields;
}

/** Fields whose images the document still has, and which undo may bring back. */
QVector<FieldImages::Found> FieldImages::removed(const QTextDocument &document) const
{
    QVector<Found> fields;
    for (auto it = m_drawn.cbegin(); it != m_drawn.cend(); ++it) {
        if (holds(document, it.key(), *it)) {
            fields.append({0, 0, it.key(), it->style});
        }
    }
    return fields;
}

QHash<QString, FieldImages::Drawn> FieldImages::wanted(const QVector<Found> &fields,
                                                       const QMap<QString, QString> &values,
                                                       bool antialias)
{
    QHash<QString, Drawn> result;
    for (const Found &field : fields) {
        const QString key = fieldKey(field.name);
        const QString value = values.value(key, values.value(fieldName(key)));
        const bool isMissing = value.isEmpty();
        result.insert(field.name,
                      {isMissing ? fieldName(key) : value, field.style, isMissing, antialias, 0});
    }
    return result;
}

bool FieldImages::isCurrent(const QTextDocument &document, const QString &name,
                            const Drawn &field) const
{
    const auto before = m_drawn.constFind(name);
    if (before == m_drawn.constEnd() || before->text != field.text ||
        before->style != field.style || before->isDimmed != field.isDimmed ||
        before->antialias != field.antialias) {
        return false;
    }
    return holds(document, name, *before);
}

bool FieldImages::holds(const QTextDocument &document, const QString &name, const Drawn &drawn)
{
    const QVariant image = document.resource(QTextDocument::ImageResource, QUrl(name));
    return image.value<QImage>().cacheKey() == drawn.imageKey;
}

/** Draws those of @p fields that are not current. */
QSet<QString> FieldImages::draw(QTextDocument *document, QHash<QString, Drawn> *fields) const
{
    QSet<QString> changed;
    for (auto it = fields->begin(); it != fields->end(); ++it) {
        if (isCurrent(*document, it.key(), *it)) {
            it->imageKey = m_drawn.value(it.key()).imageKey;
            continue;
        }
        const QImage image =
            drawField(it->text, FieldStyle::fromString(it->style), it->isDimmed, it->antialias);
        document->addResource(QTextDocument::ImageResource, QUrl(it.key()), image);
        it->imageKey = image.cacheKey();
        changed.insert(it.key());
    }
    return changed;
}

void FieldImages::markDirty(QTextDocument *document, const QVector<Found> &fields,
                            const QSet<QString> &changed)
{
    int first = 0;
    int end = 0;
    for (const Found &field : fields) {
        if (field.length == 0 || !changed.contains(field.name)) {
            continue;
        }
        if (end > 0 && !belongTogether(*document, first, field.position)) {
            document->markContentsDirty(first, end - first);
            end = 0;
        }
        first = end > 0 ? first : field.position;
        end = field.position + field.length;
    }
    if (end > 0) {
        document->markContentsDirty(first, end - first);
    }
}

bool FieldImages::hasSameFields(const QTextDocument *document, bool antialias) const
{
    if (document != m_document || document->revision() != m_revision || antialias != m_antialias) {
        return false;
    }
    // A document loses all of its images at once.
    return m_drawn.isEmpty() || holds(*document, m_drawn.cbegin().key(), *m_drawn.cbegin());
}

/** Those of the fields found last that may show the values of @p keys, in their order. */
QVector<FieldImages::Found> FieldImages::fieldsShowing(const QSet<QString> &keys)
{
    // Not before it is asked for: a text that is being written has its fields found at every key.
    if (m_places.isEmpty()) {
        for (int i = 0; i < m_fields.size(); ++i) {
            const QString key = fieldKey(m_fields.at(i).name);
            m_places.insert(key, i);
            m_places.insert(fieldName(key), i);
        }
    }
    QVector<int> places;
    for (const QString &key : keys) {
        places += m_places.values(key).toVector();
    }
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    QVector<Found> fields;
    for (const int place : qAsConst(places)) {
        fields.append(m_fields.at(place));
    }
    return fields;
}

bool FieldImages::refresh(QTextDocument *document, const QMap<QString, QString> &values)
{
    if (document == nullptr) {
        return false;
    }
    const bool antialias = isAntialiased(document->defaultFont());
    const bool isSame = hasSameFields(document, antialias);
    if (!isSame) {
        m_document = document;
        m_revision = document->revision();
        m_antialias = antialias;
        m_fields = removed(*document) + fieldsOf(*document);
        m_places.clear();
    }
    if (isSame && values == m_values) {
        return false;
    }
    const QVector<Found> fields = isSame ? fieldsShowing(differences(m_values, values)) : m_fields;
    m_values = values;
    QHash<QString, Drawn> drawn = wanted(fields, values, antialias);
    const QSet<QString> changed = draw(document, &drawn);
    if (isSame) {
        for (auto it = drawn.cbegin(); it != drawn.cend(); ++it) {
            m_drawn.insert(it.key(), *it);
        }
    } else {
        m_drawn = drawn;
    }
    markDirty(document, fields, changed);
    return !changed.isEmpty();
}

} // namespace lctrlsex
