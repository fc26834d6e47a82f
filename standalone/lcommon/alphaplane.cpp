#include "alphaplane.h"

#include "effectloops.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace lctrlsex {

AlphaPlane::AlphaPlane(int width, int capacity)
    : m_width(width)
    , m_bytes(new (std::nothrow) uchar[size_t(m_width) * size_t(capacity)])
    , m_zeros(new (std::nothrow) uchar[size_t(m_width)]())
    , m_blank(size_t(capacity), uchar(1))
{}

void AlphaPlane::clear(int rows)
{
    m_rows = rows;
    std::fill_n(m_blank.begin(), rows, uchar(1));
}

const uchar *AlphaPlane::row(int index) const
{
    return isBlank(index) ? m_zeros.get() : m_bytes.get() + size_t(index) * size_t(m_width);
}

uchar *AlphaPlane::takeRow(int index)
{
    m_blank[size_t(index)] = 0;
    return bytes(index);
}

void AlphaPlane::spread(const AlphaPlane &source, int across, int down)
{
    filter(source, across, down, loops().largest, false);
}

void AlphaPlane::shrink(const AlphaPlane &source, int across, int down)
{
    filter(source, across, down, loops().smallest, true);
}

void AlphaPlane::filter(const AlphaPlane &source, int across, int down, Pick pick,
                        bool blankAbsorbs)
{
    clear(source.m_rows);
    for (int y = 0; y < m_rows; ++y) {
        if (!source.isBlank(y)) {
            filterRow(source.row(y), takeRow(y), across, pick);
            findBlank(y, blankAbsorbs);
        }
    }
    // The window over rows grows by doubling; ascending, each row is read before it changes.
    const int window = 2 * down + 1;
    int reach = 1;
    while (reach < window) {
        const int step = std::min(reach, window - reach);
        m_rows -= step;
        for (int y = 0; y < m_rows; ++y) {
            mergeRow(y, y + step, pick, blankAbsorbs);
        }
        reach += step;
    }
    for (int y = 0; y < m_rows; ++y) {
        findBlank(y, blankAbsorbs);
    }
}

void AlphaPlane::findBlank(int index, bool isLikely)
{
    if (isLikely && !isBlank(index) &&
        std::memcmp(bytes(index), m_zeros.get(), size_t(m_width)) == 0) {
        m_blank[size_t(index)] = 1;
    }
}

void AlphaPlane::filterRow(const uchar *source, uchar *target, int across, Pick pick)
{
    const auto pad = size_t(across);
    const size_t window = 2 * pad + 1;
    const size_t count = size_t(m_width) + 2 * pad;
    // Behind the row there is room for the furthest look ahead.
    const size_t room = count + window;
    if (m_scratch.size() < 2 * room) {
        m_scratch.assign(2 * room, 0);
    }
    uchar *from = m_scratch.data();
    uchar *to = from + room;
    // Pairs of neighbours, the first and the last one with what lies beyond the edges.
    const uchar beyond = 0;
    const size_t last = size_t(m_width) - 1;
    std::memset(from, beyond, pad - 1);
    pick(from + pad - 1, &beyond, source, 1);
    pick(from + pad, source, source + 1, int(last));
    pick(from + pad + last, source + last, &beyond, 1);
    std::memset(from + pad + last + 1, beyond, pad);
    size_t reach = 2;
    while (window - reach > reach) {
        pick(to, from, from + reach, int(count));
        std::swap(from, to);
        reach *= 2;
    }
    pick(target, from, from + (window - reach), m_width);
}

void AlphaPlane::mergeRow(int target, int other, Pick pick, bool blankAbsorbs)
{
    if (isBlank(other)) {
        if (blankAbsorbs) {
            m_blank[size_t(target)] = 1;
        }
    } else if (!isBlank(target)) {
        pick(bytes(target), bytes(target), bytes(other), m_width);
    } else if (!blankAbsorbs) {
        std::memcpy(takeRow(target), bytes(other), size_t(m_width));
    }
}

} // namespace lctrlsex
