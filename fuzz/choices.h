#pragma once

#include <QtGlobal>

#include <cstddef>
#include <cstdint>

/** Choices that the bytes of a fuzzer stand for; when they are used up, always the first one. */
class Choices
{
public:
    Choices(const uint8_t *data, size_t size)
        : m_next(data)
        , m_end(data + size)
    {}

    [[nodiscard]] bool hasMore() const { return m_next != m_end; }

    /** A number from 0 to @p count - 1, at most 255. */
    int below(int count) { return hasMore() ? *m_next++ % count : 0; }

    /** True once in @p count. */
    bool onceIn(int count) { return below(count) == 1; }

    template <class Value, size_t count>
    const Value &oneOf(const Value (&values)[count])
    {
        return values[below(int(count))];
    }

private:
    const uint8_t *m_next;
    const uint8_t *m_end;
};
