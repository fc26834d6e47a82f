#pragma once

#include <QString>

class QTextCharFormat;

namespace lctrlsex {

/** A key of what shows of a character format, as CSS declarations joined by "|". */
[[nodiscard]] QString charFormatToStyle(const QTextCharFormat &format);

/** Whether two neighbouring runs look alike and may become one; images never do. */
[[nodiscard]] bool areFormatsEqual(const QTextCharFormat &left, const QTextCharFormat &right);

} // namespace lctrlsex
