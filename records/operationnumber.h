#pragma once

#include <QString>

#include <optional>

namespace lctrlsex {

/** The number that QString::toDouble() reads in all of @p text; nothing where it fails. */
[[nodiscard]] std::optional<double> numberOf(const QString &text);

/** The same bytes as QString::number(@p number, 'f', @p places), for @p places from 0 to 6. */
[[nodiscard]] QString fixedText(double number, int places);

/** fixedText() with 6 places, without trailing zeros and then without a trailing point. */
[[nodiscard]] QString shortText(double number);

/**
 * The number that stands in fixedText(@p number, @p places), and that gives the same text again.
 * Nothing when it has to be read from the text, as for very large numbers and "-0".
 */
[[nodiscard]] std::optional<double> roundedNumber(double number, int places);

} // namespace lctrlsex
