#include "fieldclipboard.h"

#include "pastedtext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace lctrlsex {

namespace {

QString fieldsFormat()
{
    return QStringLiteral("application/x-lctrlsex-fields");
}

const QChar Placeholder = QChar::ObjectReplacementCharacter;

TextWithFields::Field fieldIn(const QTextCharFormat &format)
{
    return {format.stringProperty(FieldKeyProperty), format.stringProperty(FieldStyleProperty)};
}

TextWithFields textOf(const QTextDocument &document)
{
    TextWithFields result;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            QString text = it.fragment().text();
            if (isField(it.fragment().charFormat())) {
                result.fields += QVector<TextWithFields::Field>(
                    text.count(Placeholder), fieldIn(it.fragment().charFormat()));
            } else {
                text.remove(Placeholder);
            }
            result.text += text;
        }
        if (block.next().isValid()) {
            result.text += QLatin1Char('\n');
        }
    }
    return result;
}

QTextImageFormat imageOf(const TextWithFields::Field &field)
{
    return fieldFormat(storableText(field.key, true),
                       FieldStyle::fromString(storableText(field.style, true)));
}

} // namespace

void addFields(QMimeData *data, const QTextCursor &cursor)
{
    QTextDocument copied;
    QTextCursor(&copied).insertFragment(cursor.selection());
    const TextWithFields found = textOf(copied);
    if (found.fields.isEmpty()) {
        return;
    }
    QJsonArray fields;
    for (const TextWithFields::Field &field : found.fields) {
        fields.append(QJsonObject{{QStringLiteral("key"), field.key},
                                  {QStringLiteral("style"), field.style}});
    }
    const QJsonObject all{{QStringLiteral("text"), found.text}, {QStringLiteral("fields"), fields}};
    (void)data->text(); // the toolkit fills its data when it is asked first, and replaces ours
    data->setData(fieldsFormat(), QJsonDocument(all).toJson(QJsonDocument::Compact));
}

bool hasFields(const QMimeData &data)
{
    return data.hasFormat(fieldsFormat());
}

TextWithFields fieldsOf(const QMimeData &data)
{
    const QJsonObject all = QJsonDocument::fromJson(data.data(fieldsFormat())).object();
    TextWithFields result;
    result.text = all.value(QLatin1String("text")).toString();
    const QJsonArray fields = all.value(QLatin1String("fields")).toArray();
    for (const QJsonValue &field : fields) {
        result.fields.append({field.toObject().value(QLatin1String("key")).toString(),
                              field.toObject().value(QLatin1String("style")).toString()});
    }
    return result;
}

QString insertTextWithFields(QTextCursor *cursor, const TextWithFields &pasted,
                             const TypingStyle &style, bool singleLine)
{
    const QString refusal = pastedText(pasted.text, singleLine).refusal;
    if (!refusal.isEmpty()) {
        return refusal;
    }
    const QStringList texts = pasted.text.split(Placeholder);
    const auto insert = [&](QTextCursor *at) {
        at->beginEditBlock(); // a merge can join no other step
        at->removeSelectedText();
        for (int i = 0; i < texts.size(); ++i) {
            at->insertText(storableText(texts.at(i), singleLine), style.toFormat());
            const TextWithFields::Field field = pasted.fields.value(i);
            if (i < texts.size() - 1 && !field.key.isEmpty()) {
                at->insertImage(imageOf(field));
            }
        }
        at->endEditBlock();
    };
    const QString problem = reopeningProblemAfter(*cursor, insert);
    if (problem.isEmpty()) {
        insert(cursor);
        cursor->setCharFormat(style.toFormat()); // for what is typed next
    }
    return problem;
}

} // namespace lctrlsex
