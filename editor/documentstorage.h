#pragma once

#include <QByteArray>
#include <QString>

namespace lctrlsex {

/** A stored document read back. */
struct DecodedDocument
{
    /** The HTML; empty when there is an error or the document is empty. */
    QString html;
    /** What is wrong and where, in one sentence for the user; empty when nothing is. */
    QString error;
};

/**
 * The form in which a document is kept: UTF-8, then Base64, on one line. A lone surrogate is
 * written as U+FFFD, because UTF-8 has no form for it.
 */
[[nodiscard]] QString encodeDocument(const QString &html);

/** @p text with U+FFFD in place of lone surrogates. */
[[nodiscard]] QString wellFormed(QString text);
/** The second half of encodeDocument(): @p utf8 in Base64. */
[[nodiscard]] QString encodeUtf8(const QByteArray &utf8);

/**
 * Reads encodeDocument()'s form back. Blanks and line breaks are passed over; any other flaw
 * (foreign character, padding in the wrong place or number, bits left over, invalid UTF-8) is an
 * error and gives no document. Empty text is the empty document.
 */
[[nodiscard]] DecodedDocument decodeDocument(const QString &stored);

} // namespace lctrlsex
