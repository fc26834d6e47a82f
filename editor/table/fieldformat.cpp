#include "fieldformat.h"

#include <QFont>
#include <QStringList>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVector>

namespace lctrlsex {

namespace {

QString namePrefix()
{
    return QStringLiteral("data://bindKey/");
}

QString nameSuffix()
{
    return QStringLiteral(".png");
}

QString nameOrEmpty(const QColor &color)
{
    return color.isValid() ? color.name() : QString();
}

QColor colorOrInvalid(const QString &name)
{
    return name.isEmpty() ? QColor() : QColor(name);
}

} // namespace

QString FieldStyle::toString() const
{
    QStringList parts{conditionId,
                      text.family,
                      QString::number(text.effectiveSize()),
                      QString::number(int(text.italic)),
                      QString::number(int(text.underline)),
                      QString::number(int(text.bold)),
                      nameOrEmpty(text.color),
                      nameOrEmpty(background)};
    parts.replaceInStrings(QStringLiteral(";"), QStringLiteral(" "));
    return parts.join(QLatin1Char(';'));
}

FieldStyle FieldStyle::fromString(const QString &style)
{
    FieldStyle result;
    const QStringList parts = style.split(QLatin1Char(';'));
    if (parts.size() < 8) {
        return result;
    }
    result.conditionId = parts.at(0);
    result.text.family = parts.at(1);
    result.text.pointSize = parts.at(2).toInt();
    result.text.pointSize = result.text.effectiveSize();
    result.text.italic = parts.at(3).toInt() != 0;
    result.text.underline = parts.at(4).toInt() != 0;
    result.text.bold = parts.at(5).toInt() != 0;
    result.text.color = colorOrInvalid(parts.at(6));
    result.background = colorOrInvalid(parts.at(7));
    return result;
}

QString fieldName(const QString &qualifiedKey)
{
    return qualifiedKey.mid(qualifiedKey.indexOf(QLatin1Char(':')) + 1);
}

QString fieldImageName(const QString &qualifiedKey)
{
    const int colon = qualifiedKey.indexOf(QLatin1Char(':'));
    const QString source = colon < 0 ? QString() : qualifiedKey.left(colon);
    return namePrefix() + source + QLatin1Char('/') + fieldName(qualifiedKey) + nameSuffix();
}

QString fieldKey(const QString &imageName)
{
    const int start = imageName.indexOf(namePrefix());
    if (start < 0) {
        return {};
    }
    QString path = imageName.mid(start + namePrefix().size());
    path.chop(nameSuffix().size());
    const int slash = path.indexOf(QLatin1Char('/'));
    if (slash <= 0) {
        return path.mid(slash + 1);
    }
    return path.left(slash) + QLatin1Char(':') + path.mid(slash + 1);
}

bool isField(const QTextCharFormat &format)
{
    return format.isImageFormat() && format.hasProperty(FieldKeyProperty) &&
           format.hasProperty(FieldStyleProperty) &&
           format.toImageFormat().name().contains(namePrefix());
}

int fieldPixelSize(const TypingStyle &style)
{
    constexpr int largest = 1000;
    return qMin(style.effectiveSize(), largest);
}

namespace {

/** The layout asks the font of such an image how much of it is below the line. */
void setOnBaseline(QTextCharFormat *format, const TypingStyle &style)
{
    QFont font(style.family);
    font.setPixelSize(fieldPixelSize(style));
    format->setFont(font, QTextCharFormat::FontPropertiesSpecifiedOnly);
    format->setVerticalAlignment(QTextCharFormat::AlignBaseline);
}

} // namespace

void alignFields(QTextDocument *document)
{
    struct Field
    {
        int position;
        int length;
        QTextCharFormat format;
    };
    QVector<Field> fields;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (isField(it.fragment().charFormat())) {
                const QTextFragment fragment = it.fragment();
                fields.append({fragment.position(), fragment.length(), fragment.charFormat()});
            }
        }
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (Field &field : fields) {
        const QString style = field.format.stringProperty(FieldStyleProperty);
        setOnBaseline(&field.format, FieldStyle::fromString(style).text);
        cursor.setPosition(field.position);
        cursor.setPosition(field.position + field.length, QTextCursor::KeepAnchor);
        cursor.setCharFormat(field.format);
    }
    cursor.endEditBlock();
}

QTextImageFormat fieldFormat(const QString &qualifiedKey, const FieldStyle &style)
{
    QTextImageFormat format;
    format.setName(fieldImageName(qualifiedKey));
    format.setProperty(FieldKeyProperty, qualifiedKey);
    format.setProperty(FieldStyleProperty, style.toString());
    setOnBaseline(&format, style.text);
    return format;
}

void insertField(QTextCursor &cursor, const QString &qualifiedKey, const TypingStyle &style)
{
    cursor.beginEditBlock(); // a merge can join no other step
    FieldStyle fieldStyle;
    fieldStyle.text = style;
    cursor.insertImage(fieldFormat(qualifiedKey, fieldStyle));
    cursor.endEditBlock();
    cursor.setCharFormat(style.toFormat());
}

namespace {

/** What @p format, of an image or of text that took it over, has for text. */
QTextCharFormat withoutImage(QTextCharFormat format)
{
    for (const int property :
         {int(QTextFormat::ObjectType), int(QTextFormat::ImageName), int(QTextFormat::ImageWidth),
          int(QTextFormat::ImageHeight), int(QTextFormat::TextVerticalAlignment), FieldKeyProperty,
          FieldStyleProperty}) {
        format.clearProperty(property);
    }
    return format;
}

} // namespace

QTextCharFormat formatBehind(const QTextCharFormat &format)
{
    if (!format.hasProperty(FieldKeyProperty) || !format.hasProperty(FieldStyleProperty)) {
        return format.hasProperty(QTextFormat::ImageName) ? withoutImage(format) : format;
    }
    return FieldStyle::fromString(format.stringProperty(FieldStyleProperty)).text.toFormat();
}

QTextCharFormat conditionAnchor(const QString &id, const QString &name)
{
    QTextCharFormat format;
    format.setAnchor(true);
    format.setAnchorHref(QStringLiteral("bindStyle;") + id + QLatin1Char(';') + name);
    return format;
}

} // namespace lctrlsex
