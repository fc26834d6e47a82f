#pragma once

#include <QtGlobal>

#include <memory>
#include <vector>

namespace lctrlsex {

/**
 * A block of rows of coverage values, one byte a pixel, that can be spread and shrunk.
 *
 * Pages are mostly empty, so a row may be marked blank: it reads as zeros and is skipped by
 * every operation.
 * Not thread-safe; use one plane per thread.
 */
class AlphaPlane
{
public:
    /** A plane of \a width pixels (above 0) with room for \a capacity rows (above 0). */
    AlphaPlane(int width, int capacity);
    AlphaPlane(const AlphaPlane &) = delete;
    AlphaPlane &operator=(const AlphaPlane &) = delete;

    /** True when there was not enough memory; then nothing else may be called. */
    [[nodiscard]] bool isNull() const { return !m_bytes || !m_zeros; }
    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int rowCount() const { return m_rows; }

    /** Makes the plane \a rows rows high (at most the capacity), all of them blank. */
    void clear(int rows);

    /** True when row \a index is known to hold only zeros. */
    [[nodiscard]] bool isBlank(int index) const { return m_blank[size_t(index)] != 0; }

    /** The bytes of row \a index, zeros when it is blank. */
    [[nodiscard]] const uchar *row(int index) const;

    /** Marks row \a index as not blank and returns its bytes, to be filled by the caller. */
    uchar *takeRow(int index);

    /**
     * Fills this plane with the largest value of \a source within \a across columns and \a down
     * rows; beyond the left and right edge there is 0. The rows of \a source are all there is, so
     * the result has 2 * \a down rows less and its row 0 belongs to row \a down of \a source.
     * \a source must be another plane of the same width and have more than 2 * \a down rows;
     * \a across and \a down must be above 0.
     */
    void spread(const AlphaPlane &source, int across, int down);

    /** Like spread(), with the smallest value. */
    void shrink(const AlphaPlane &source, int across, int down);

private:
    using Pick = void (*)(uchar *target, const uchar *first, const uchar *second,
                          const uchar *third, int count);

    void filter(const AlphaPlane &source, int across, int down, Pick pick, bool blankAbsorbs);
    void filterRow(const uchar *source, uchar *target, int across, Pick pick);
    /** Marks row \a index when it is found to hold only zeros; looks only when that is likely. */
    void findBlank(int index, bool isLikely);
    void mergeRows(int target, int second, int third, Pick pick, bool blankAbsorbs);
    [[nodiscard]] uchar *bytes(int index)
    {
        return m_bytes.get() + size_t(index) * size_t(m_width);
    }

    int m_width;
    int m_rows = 0;
    std::unique_ptr<uchar[]> m_bytes;
    std::unique_ptr<uchar[]> m_zeros;
    std::vector<uchar> m_blank;
    std::vector<uchar> m_scratch;
};

} // namespace lctrlsex
