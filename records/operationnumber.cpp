#include "operationnumber.h"

#include <array>
#include <cmath>

namespace lctrlsex {

namespace {

constexpr std::array<double, 16> powersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
constexpr double largestExactInteger = 9007199254740992.0; // 2^53
constexpr double largestScaled = 2147483648.0;             // times 10^6 it keeps a bit for halves

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/** Up to 16 digits, 15 with decimals: these are exact as the divisor is, so that one step rounds.
 */
bool readPlain(const QString &text, double *number)
{
    const QChar *next = text.constBegin();
    const QChar *const end = text.constEnd();
    const bool isNegative = next != end && *next == QLatin1Char('-');
    next += int(isNegative);
    const auto size = end - next;
    if (size < 1 || size > 16 || !isDigit(*next) || !isDigit(*(end - 1))) {
        return false;
    }
    qint64 digits = 0;
    const QChar *point = nullptr;
    for (; next != end; ++next) {
        if (isDigit(*next)) {
            digits = digits * 10 + (next->unicode() - '0');
        } else if (*next == QLatin1Char('.') && point == nullptr) {
            point = next;
        } else {
            return false;
        }
    }
    const auto decimals = point == nullptr ? 0 : end - point - 1;
    const double magnitude = double(digits) / powersOfTen[size_t(decimals)];
    *number = isNegative ? -magnitude : magnitude;
    return true;
}

/** A number without its sign as it is written. */
struct Digits
{
    /** False for what is too large, and where a sign stands before zeros. */
    bool isKnown = false;
    bool isWhole = false;
    /** Before the point, and behind it too unless the number is whole. */
    qint64 digits = 0;
};

/** The digits of @p number, rounded as Qt does, which takes the exact value and halves up. */
inline Digits digitsOf(double number, int places)
{
    const double magnitude = std::fabs(number);
    if (!(magnitude < largestExactInteger)) {
        return {};
    }
    const auto whole = qint64(magnitude);
    if (double(whole) == magnitude) {
        return {true, true, whole};
    }
    if (magnitude >= largestScaled) {
        return {};
    }
    const double scale = powersOfTen[size_t(places)];
    const double product = magnitude * scale;
    const double error = std::fma(magnitude, scale, -product);
    auto scaled = qint64(product);
    const double overHalf = product - double(scaled) - 0.5;
    if (overHalf > 0 || (overHalf == 0 && error >= 0)) {
        ++scaled;
    }
    return {scaled != 0 || number >= 0, false, scaled};
}

/** @p digits of which @p places stand behind the point, and @p zeros behind those. */
QString written(qint64 digits, int places, int zeros, bool isNegative)
{
    std::array<QChar, 40> characters;
    QChar *const end = characters.data() + characters.size();
    QChar *first = end;
    for (int i = 0; i < zeros; ++i) {
        *--first = QLatin1Char('0');
    }
    for (int i = 0; i < places; ++i, digits /= 10) {
        *--first = QLatin1Char(char('0' + digits % 10));
    }
    if (places + zeros > 0) {
        *--first = QLatin1Char('.');
    }
    do {
        *--first = QLatin1Char(char('0' + digits % 10));
        digits /= 10;
    } while (digits > 0);
    if (isNegative) {
        *--first = QLatin1Char('-');
    }
    return QString(first, int(end - first));
}

} // namespace

std::optional<double> numberOf(const QString &text)
{
    double number = 0;
    bool isNumber = readPlain(text, &number);
    if (!isNumber) {
        number = text.toDouble(&isNumber);
    }
    return isNumber ? std::optional<double>(number) : std::nullopt;
}

QString fixedText(double number, int places)
{
    const Digits digits = digitsOf(number, places);
    if (!digits.isKnown) {
        return QString::number(number, 'f', places);
    }
    const int zeros = digits.isWhole ? places : 0;
    return written(digits.digits, places - zeros, zeros, number < 0);
}

QString shortText(double number)
{
    Digits digits = digitsOf(number, 6);
    if (digits.isKnown) {
        int places = digits.isWhole ? 0 : 6;
        for (; places > 0 && digits.digits % 10 == 0; --places) {
            digits.digits /= 10;
        }
        return written(digits.digits, places, 0, number < 0);
    }
    QString text = QString::number(number, 'f', 6);
    while (text.endsWith(QLatin1Char('0'))) {
        text.chop(1);
    }
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    return text;
}

std::optional<double> roundedNumber(double number, int places)
{
    const Digits digits = digitsOf(number, places);
    if (!digits.isKnown) {
        return {};
    }
    // Both are exact, so that the quotient is the very double that the text reads as.
    const double magnitude = digits.isWhole ? double(digits.digits)
                                            : double(digits.digits) / powersOfTen[size_t(places)];
    return number < 0 ? -magnitude : magnitude;
}

} // namespace lctrlsex
