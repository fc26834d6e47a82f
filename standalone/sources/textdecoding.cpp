#include "textdecoding.h"

#include "sourcetexts.h"

#include <QTextCodec>
#include <QtEndian>

#include <cstring>

namespace sources {

namespace {

/** Length of the character at @p at, 0 when there is none. */
int characterLength(const uchar *at, const uchar *end)
{
    const uchar first = *at;
    if (first < 0x80) {
        return first != 0 ? 1 : 0;
    }
    const int length = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    if (first < 0xc2 || first > 0xf4 || end - at < length) {
        return 0;
    }
    for (int i = 1; i < length; ++i) {
        if ((at[i] & 0xc0) != 0x80) {
            return 0;
        }
    }
    const bool isOverlong = (first == 0xe0 && at[1] < 0xa0) || (first == 0xf0 && at[1] < 0x90);
    const bool isSurrogate = first == 0xed && at[1] > 0x9f;
    const bool isBeyond = first == 0xf4 && at[1] > 0x8f;
    return isOverlong || isSurrogate || isBeyond ? 0 : length;
}

/** Whether eight bytes are ASCII and none of them is null. */
bool isPlainWord(const uchar *at)
{
    quint64 word;
    std::memcpy(&word, at, sizeof word);
    constexpr quint64 high = 0x8080808080808080u;
    constexpr quint64 ones = 0x0101010101010101u;
    return (word & high) == 0 && ((word - ones) & high) == 0;
}

} // namespace

bool isCleanUtf8(const QByteArray &bytes)
{
    const auto *at = reinterpret_cast<const uchar *>(bytes.constData());
    const uchar *const end = at + bytes.size();
    while (at < end) {
        if (end - at >= 8 && isPlainWord(at)) {
            at += 8;
            continue;
        }
        const int length = characterLength(at, end);
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}

QByteArray toCleanUtf8(const QByteArray &bytes, const QString &encoding, QString *error)
{
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        return toCleanUtf8(bytes.mid(3), QStringLiteral("UTF-8"), error);
    }
    QTextCodec *codec = QTextCodec::codecForUtfText(bytes, nullptr);
    if (codec == nullptr && !encoding.isEmpty()) {
        codec = QTextCodec::codecForName(encoding.toLatin1());
        if (codec == nullptr) {
            *error = SourceTexts::tr("there is no encoding %1").arg(encoding);
            return QByteArray();
        }
    }
    const bool isUtf8 = codec == nullptr || codec->mibEnum() == 106;
    if (isUtf8 && isCleanUtf8(bytes)) {
        return bytes;
    }
    constexpr int longest = 500 * 1024 * 1024; // as UTF-16 it must fit into one QString
    if (bytes.size() > longest) {
        *error = SourceTexts::tr("the text is too long for an encoding other than UTF-8");
        return QByteArray();
    }
    QString text = (codec != nullptr ? codec : QTextCodec::codecForLocale())->toUnicode(bytes);
    text.replace(QChar::Null, QChar(QChar::ReplacementCharacter));
    return text.toUtf8();
}

} // namespace sources
