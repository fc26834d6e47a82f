#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstring>

/** UTF-16 behind a 'w', so that every code unit can come; UTF-8 otherwise. */
inline QString inputText(const uint8_t *data, size_t size)
{
    if (size == 0 || data[0] != 'w') {
        return QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    }
    QString text(int(size - 1) / 2, Qt::Uninitialized);
    std::memcpy(text.data(), data + 1, size_t(text.size()) * sizeof(QChar));
    return text;
}
