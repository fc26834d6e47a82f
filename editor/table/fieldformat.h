#pragma once

#include "typingstyle.h"

#include <QColor>
#include <QString>
#include <QTextImageFormat>

class QTextCursor;
class QTextDocument;

namespace lctrlsex {

/** Property of a field image that holds its qualified key; HTML keeps it as the image's title. */
constexpr int FieldKeyProperty = 0x5001;
/** Property of a field image that holds its style; HTML keeps it as the alternate text. */
constexpr int FieldStyleProperty = 0x5002;

/** The look of a field, as the document carries it. */
struct FieldStyle
{
    QString conditionId; ///< Identifier of the conditional style; empty for none.
    TypingStyle text;
    QColor background; ///< Invalid for none.

    /**
     * Eight parts between ";": condition, family, size in points, then italic, underline and bold
     * as 0 or 1, and both colours as #rrggbb or empty. A ";" inside a part becomes a blank.
     */
    [[nodiscard]] QString toString() const;
    /** Reads toString(); fewer than eight parts give a default style, a size below 1 gives 16. */
    [[nodiscard]] static FieldStyle fromString(const QString &style);
};

/** The field's name in a qualified key, without its source. */
[[nodiscard]] QString fieldName(const QString &qualifiedKey);
/**
 * The image name of a field: "data://bindKey/source/field.png" of "source:field". A key without
 * ":" is that of a calculation and has no source.
 */
[[nodiscard]] QString fieldImageName(const QString &qualifiedKey);
/** The key that fieldImageName() made @p imageName of; empty when it is no name of a field. */
[[nodiscard]] QString fieldKey(const QString &imageName);

/** Whether @p format is the image of a bound field. */
[[nodiscard]] bool isField(const QTextCharFormat &format);
/** Height in pixels of the letters of a field. */
[[nodiscard]] int fieldPixelSize(const TypingStyle &style);
/**
 * Makes the fields of @p document stand on the line that the text beside them is written on; to be
 * called after its HTML is set, which cannot say so.
 */
void alignFields(QTextDocument *document);
/** The image that stands for a field of @p qualifiedKey, to look like @p style. */
[[nodiscard]] QTextImageFormat fieldFormat(const QString &qualifiedKey, const FieldStyle &style);

/** Replaces the selection of @p cursor by a field; text typed next takes @p style. */
void insertField(QTextCursor &cursor, const QString &qualifiedKey, const TypingStyle &style);
/**
 * The format for text that is typed behind @p format: the look of a field when that belongs to
 * one, without anything of its binding; that of another image without what makes it an image; else
 * @p format itself. To be asked whenever the cursor
 * has moved, because text takes over all of the format before it.
 */
[[nodiscard]] QTextCharFormat formatBehind(const QTextCharFormat &format);

/** Text under a conditional style: a link to "bindStyle;id;name". */
[[nodiscard]] QTextCharFormat conditionAnchor(const QString &id, const QString &name);

} // namespace lctrlsex
