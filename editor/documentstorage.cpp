#include "documentstorage.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace lctrlsex {

namespace {

/** Texts of this file, under one name for translators. */
struct DocumentStorageTexts
{
    Q_DECLARE_TR_FUNCTIONS(DocumentStorage)
};

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || (c >= QLatin1Char('\t') && c <= QLatin1Char('\r'));
}

/** The six bits that a character stands for; -1 for a foreign one. */
int sextet(QChar c)
{
    const ushort u = c.unicode();
    if (u >= 'A' && u <= 'Z') {
        return u - 'A';
    }
    if (u >= 'a' && u <= 'z') {
        return u - 'a' + 26;
    }
    if (u >= '0' && u <= '9') {
        return u - '0' + 52;
    }
    if (u == '+') {
        return 62;
    }
    return u == '/' ? 63 : -1;
}

/** Reads Base64 strictly. */
class Base64Reader
{
public:
    /** Reads all of @p stored; an empty error means that bytes() is the content. */
    [[nodiscard]] QString read(const QString &stored);

    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }

private:
    void take(int bits);
    [[nodiscard]] QString endError(int position) const;

    QByteArray m_bytes;
    uint m_bits = 0;
    int m_digits = 0;
    int m_padding = 0;
};

void Base64Reader::take(int bits)
{
    m_bits = (m_bits << 6U) | uint(bits);
    if (++m_digits % 4 != 1) {
        const int shift = 6 - 2 * ((m_digits + 3) % 4);
        m_bytes += char((m_bits >> uint(shift)) & 0xffU);
    }
}

QString Base64Reader::endError(int position) const
{
    const int rest = m_digits % 4;
    if (rest == 1 || (rest + m_padding) % 4 != 0) {
        return DocumentStorageTexts::tr(
                   "The stored text is cut off at character %1; restore it from a copy.")
            .arg(position);
    }
    const uint left = rest == 2 ? m_bits & 0xfU : m_bits & 0x3U;
    if (rest != 0 && left != 0) {
        return DocumentStorageTexts::tr(
                   "The stored text is damaged before its end at character %1; restore it from a "
                   "copy.")
            .arg(position);
    }
    return {};
}

QString Base64Reader::read(const QString &stored)
{
    m_bytes.reserve(stored.size() / 4 * 3 + 3);
    for (int i = 0; i < stored.size(); ++i) {
        const QChar c = stored.at(i);
        if (isBlank(c)) {
            continue;
        }
        const int bits = sextet(c);
        if (c == QLatin1Char('=') && m_digits % 4 >= 2 && m_digits % 4 + m_padding < 4) {
            ++m_padding;
            continue;
        }
        if (bits < 0) {
            return DocumentStorageTexts::tr(
                       "The stored text has a character that does not belong there (U+%1) at "
                       "position %2; restore it from a copy.")
                .arg(c.unicode(), 4, 16, QLatin1Char('0'))
                .arg(i + 1);
        }
        if (m_padding > 0) {
            return DocumentStorageTexts::tr(
                       "The stored text goes on behind its end at position %1; restore it from a "
                       "copy.")
                .arg(i + 1);
        }
        take(bits);
    }
    return endError(stored.size());
}

/** Length of the longest valid start of @p bytes; for the error text only. */
int validUtf8Length(const QByteArray &bytes)
{
    int begin = 0;
    while (begin < bytes.size()) {
        const auto lead = uchar(bytes.at(begin));
        const int length = lead < 0x80 ? 1 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        (void)QTextCodec::codecForName("UTF-8")->toUnicode(
            bytes.constData() + begin, qMin(length, bytes.size() - begin), &state);
        if (state.invalidChars > 0 || state.remainingChars > 0) {
            return begin;
        }
        begin += length;
    }
    return begin;
}

/** Two digits of Base64: twelve bits at a time are faster than six. */
using DigitPair = std::array<QChar, 2>;

std::vector<DigitPair> digitPairs()
{
    const QByteArray digits =
        QByteArrayLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/");
    std::vector<DigitPair> pairs;
    pairs.reserve(4096);
    for (const char high : digits) {
        for (const char low : digits) {
            pairs.push_back({QLatin1Char(high), QLatin1Char(low)});
        }
    }
    return pairs;
}

} // namespace

QString wellFormed(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (!text.at(i).isSurrogate()) {
            continue;
        }
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() &&
            text.at(i + 1).isLowSurrogate()) {
            ++i;
        } else {
            text[i] = QChar(QChar::ReplacementCharacter);
        }
    }
    return text;
}

QString encodeUtf8(const QByteArray &utf8)
{
    static const std::vector<DigitPair> pairs = digitPairs();
    const int whole = utf8.size() / 3;
    const QByteArray rest = utf8.mid(3 * whole).toBase64();
    QString coded(4 * whole + rest.size(), Qt::Uninitialized);
    QChar *to = coded.data();
    const auto *from = reinterpret_cast<const uchar *>(utf8.constData());
    for (int i = 0; i < whole; ++i, from += 3, to += 4) {
        const uint bits = uint(from[0]) << 16U | uint(from[1]) << 8U | from[2];
        std::memcpy(to, pairs[bits >> 12U].data(), sizeof(DigitPair));
        std::memcpy(to + 2, pairs[bits & 0xfffU].data(), sizeof(DigitPair));
    }
    std::transform(rest.begin(), rest.end(), to, [](char c) { return QLatin1Char(c); });
    return coded;
}

QString encodeDocument(const QString &html)
{
    return encodeUtf8(wellFormed(html).toUtf8());
}

DecodedDocument decodeDocument(const QString &stored)
{
    DecodedDocument result;
    Base64Reader reader;
    result.error = reader.read(stored);
    if (!result.error.isEmpty()) {
        return result;
    }
    const QByteArray &bytes = reader.bytes();
    // Kept on purpose: a byte order mark is text here, so that decoding undoes encoding exactly.
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString html =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        result.error =
            DocumentStorageTexts::tr(
                "The stored text is not valid UTF-8 from byte %1 on; restore it from a copy.")
                .arg(validUtf8Length(bytes) + 1);
        return result;
    }
    result.html = html;
    return result;
}

} // namespace lctrlsex
