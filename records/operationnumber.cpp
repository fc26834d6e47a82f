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

/** Up to 15 digits with or without decimals: both parts are exact, so that one division rounds. */
std::optional<double> plainNumber(const QString &text)
{
    const QChar *next = text.constBegin();
    const QChar *const end = text.constEnd();
    const bool isNegative = next != end && *next == QLatin1Char('-');
    next += int(isNegative);
    const auto size = end - next;
    if (size < 1 || size > 16 || !isDigit(*next) || !isDigit(*(end - 1))) {
        return {};
    }
    qint64 digits = 0;
    const QChar *point = nullptr;
    for (; next != end; ++next) {
        if (isDigit(*next)) {
            digits = digits * 10 + (next->unicode() - '0');
        } else if (*next == QLatin1Char('.') && point == nullptr) {
            point = next;
        } else {
            return {};
        }
    }
    if (point == nullptr && size > 15) {
        return {};
    }
    const auto decimals = point == nullptr ? 0 : end - point - 1;
    const double number = double(digits) / powersOfTen[size_t(decimals)];
    return isNegative ? -number : number;
}

/** A magnitude as it is written. */
struct Digits
{
    qint64 whole;
    int fraction;
};

/**
 * The digits of @p magnitude, rounded as Qt does, which takes the exact value and rounds halves up.
 * Nothing for numbers that are too large.
 */
std::optional<Digits> digitsOf(double magnitude, int places)
{
    if (!(magnitude < largestExactInteger)) {
        return {};
    }
    const auto whole = qint64(magnitude);
    if (double(whole) == magnitude) {
        return Digits{whole, 0};
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
    return Digits{scaled / qint64(scale), int(scaled % qint64(scale))};
}

/** As digitsOf(), but nothing where a sign stands before zeros only. */
std::optional<Digits> signedDigitsOf(double number, int places)
{
    const auto digits = digitsOf(std::fabs(number), places);
    const bool isOnlySign = number < 0 && digits && digits->whole == 0 && digits->fraction == 0;
    return isOnlySign ? std::nullopt : digits;
}

QString written(const Digits &digits, int places, bool isNegative)
{
    std::array<QChar, 32> characters;
    QChar *const end = characters.data() + characters.size();
    QChar *first = end;
    int fraction = digits.fraction;
    for (int i = 0; i < places; ++i, fraction /= 10) {
        *--first = QLatin1Char(char('0' + fraction % 10));
    }
    if (places > 0) {
        *--first = QLatin1Char('.');
    }
    qint64 whole = digits.whole;
    do {
        *--first = QLatin1Char(char('0' + whole % 10));
        whole /= 10;
    } while (whole > 0);
    if (isNegative) {
        *--first = QLatin1Char('-');
    }
    return QString(first, int(end - first));
}

} // namespace

std::optional<double> numberOf(const QString &text)
{
    const auto plain = plainNumber(text);
    if (plain) {
        return plain;
    }
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? std::optional<double>(number) : std::nullopt;
}

QString fixedText(double number, int places)
{
    const auto digits = signedDigitsOf(number, places);
    return digits ? written(*digits, places, number < 0) : QString::number(number, 'f', places);
}

QString shortText(double number)
{
    auto digits = signedDigitsOf(number, 6);
    if (digits) {
        int places = 6;
        for (; places > 0 && digits->fraction % 10 == 0; --places) {
            digits->fraction /= 10;
        }
        return written(*digits, places, number < 0);
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
    const auto digits = signedDigitsOf(number, places);
    if (!digits) {
        return {};
    }
    // Both are exact, so that the quotient is the very double that the text reads as.
    const double scale = powersOfTen[size_t(places)];
    const double magnitude = digits->fraction == 0
                                 ? double(digits->whole)
                                 : (double(digits->whole) * scale + digits->fraction) / scale;
    return number < 0 ? -magnitude : magnitude;
}

} // namespace lctrlsex
