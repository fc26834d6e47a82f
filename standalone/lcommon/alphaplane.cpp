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
    // The window over rows grows threefold; ascending, each row is read before it changes.
    const int window = 2 * down + 1;
    for (int reach = 1; reach < window;) {
        const int growth = std::min(2 * reach, window - reach);
        m_rows -= growth;
        for (int y = 0; y < m_rows; ++y) {
            mergeRows(y, y + growth / 2, y + growth, pick, blankAbsorbs);
        }
        reach += growth;
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
    const auto width = size_t(m_width);
    const size_t window = 2 * pad + 1;
    const size_t count = width + 2 * pad;
    // Behind the row there is room for the furthest look ahead.
    const size_t room = count + window;
    if (m_scratch.size() < 2 * room) {
        m_scratch.assign(2 * room, 0);
    }
    uchar *from = m_scratch.data();
    uchar *to = from + room;
    std::memset(from, 0, pad);
    std::memcpy(from + pad, source, width);
    std::memset(from + pad + width, 0, pad);
    size_t reach = 1;
    for (; 3 * reach < window; reach *= 3) {
        pick(to, from, from + reach, from + 2 * reach, int(count));
        std::swap(from, to);
    }
    const size_t growth = window - reach;
    pick(target, from, from + growth / 2, from + growth, m_width);
}

void AlphaPlane::mergeRows(int target, int second, int third, Pick pick, bool blankAbsorbs)
{
    if (blankAbsorbs && (isBlank(target) || isBlank(second) || isBlank(third))) {
        m_blank[size_t(target)] = 1;
    } else if (!isBlank(second) || !isBlank(third)) {
        const uchar *first = row(target);
        pick(takeRow(target), first, row(second), row(third), m_width);
    }
}

} // namespace lctrlsex
