#pragma once

#include "fieldformat.h"

#include <QString>
#include <QVector>

class QMimeData;
class QTextCursor;

namespace lctrlsex {

/** Text on its way over the clipboard: each U+FFFC in it stands for the next field. */
struct TextWithFields
{
    struct Field
    {
        QString key;   ///< Qualified, as FieldKeyProperty holds it.
        QString style; ///< As FieldStyleProperty holds it.
    };

    QString text;
    QVector<Field> fields;
};

/** Adds the fields in the selection of @p cursor to @p data, which has its text already. */
void addFields(QMimeData *data, const QTextCursor &cursor);
[[nodiscard]] bool hasFields(const QMimeData &data);
/** What addFields() added; nothing when that is not what @p data has. */
[[nodiscard]] TextWithFields fieldsOf(const QMimeData &data);

/**
 * Replaces the selection of @p cursor, as one undo step: the text becomes plain text in @p style,
 * made storable, and the fields keep the look that they have. When the document could not be
 * opened again, or the text is too long, nothing changes and the reason is returned.
 */
[[nodiscard]] QString insertTextWithFields(QTextCursor *cursor, const TextWithFields &pasted,
                                           const TypingStyle &style, bool singleLine);

} // namespace lctrlsex
