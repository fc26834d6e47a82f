#pragma once

#include <QRectF>

class QTextCharFormat;
class QTextCursor;
class QTextDocument;

namespace lctrlsex {

/** The format of the character at @p position, one of several images in a row too. */
[[nodiscard]] QTextCharFormat formatOfCharacter(const QTextDocument &document, int position);

/**
 * Whether the character at @p position, which may be any number, is a picture in its line: neither
 * a field nor an image that text flows around.
 */
[[nodiscard]] bool isPictureAt(const QTextDocument &document, int position);

/**
 * The position of the picture that @p cursor is about: the one that is all of its selection, else
 * without a selection the one behind or before which it stands, @p preferred first of the two.
 * -1 when there is none.
 */
[[nodiscard]] int pictureAt(const QTextCursor &cursor, int preferred = -1);

/** The position of the picture that is shown at @p point of the document; -1 without one. */
[[nodiscard]] int pictureAt(const QTextDocument &document, const QPointF &point);

/** Where the picture at @p position is shown, in the document; lays out what is above it. */
[[nodiscard]] QRectF pictureRect(const QTextDocument &document, int position);

/**
 * Gives the picture at @p position a size in pixels, as one undo step; undoing it takes the text
 * cursor to where @p cursor is.
 */
void resizePicture(QTextCursor cursor, int position, const QSize &size);

} // namespace lctrlsex
