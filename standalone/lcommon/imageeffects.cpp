#include "imageeffects.h"

#include "alphaplane.h"
#include "effectloops.h"

#include <algorithm>
#include <cstring>
#include <vector>

using namespace lctrlsex;

namespace {

// Rows worked on at a time: few enough for a wide page to stay in the second-level cache.
constexpr int blockRows = 64;
// Pixels that are skipped at a time where there is nothing to paint.
constexpr int groupPixels = 16;
// Opaque images: where the full colour of a soft edge is looked for.
constexpr int edgeReach = 2;

const QRgb *constRow(const QImage &image, int y)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(y));
}

bool isWhollyOpaque(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        const QRgb *row = constRow(image, y);
        // Most transparent pages show it in their first pixel.
        if (qAlpha(row[0]) != 255 || qAlpha(loops().commonBits(row, image.width())) != 255) {
            return false;
        }
    }
    return true;
}

/** The most frequent colour of the border, which has few runs of equal colour: they are counted. */
QRgb borderColor(const QImage &image)
{
    struct Run
    {
        QRgb color;
        int length;
    };
    std::vector<Run> runs;
    const auto add = [&runs](QRgb color) {
        if (runs.empty() || runs.back().color != color) {
            runs.push_back({color, 0});
        }
        ++runs.back().length;
    };
    const int right = image.width() - 1;
    for (int y : {0, image.height() - 1}) {
        std::for_each(constRow(image, y), constRow(image, y) + image.width(), add);
    }
    for (int x : {0, right}) {
        for (int y = 0; y < image.height(); ++y) {
            add(constRow(image, y)[x]);
        }
    }
    std::sort(runs.begin(), runs.end(),
              [](const Run &a, const Run &b) { return a.color < b.color; });
    Run best{0, 0};
    Run current{0, 0};
    for (const Run &run : runs) {
        current = {run.color, run.length + (run.color == current.color ? current.length : 0)};
        if (current.length > best.length) {
            best = current;
        }
    }
    return best.color;
}

bool isUniform(const QRgb *row, int width, QRgb color)
{
    return row[0] == color && std::memcmp(row, row + 1, size_t(width - 1) * sizeof(QRgb)) == 0;
}

/** A page as straight 32-bit pixels, with its ground and the coverage of its text. */
class TextPage
{
public:
    TextPage(const QImage &image, int down);

    [[nodiscard]] bool isNull() const;
    [[nodiscard]] bool isOpaque() const { return m_opaque; }
    [[nodiscard]] QRgb ground() const { return m_ground; }
    [[nodiscard]] const QImage &image() const { return m_image; }
    [[nodiscard]] bool isBlank(int y) const { return m_blank[size_t(y)] != 0; }

    /** Coverage of rows \a first .. \a first + \a count - 1; rows beyond the image are blank. */
    void readCoverage(int first, int count, AlphaPlane *coverage);

private:
    void readDistances(int first, int count, AlphaPlane *plane) const;
    [[nodiscard]] bool hasText(int first, int count) const;

    QImage m_image;
    bool m_opaque;
    QRgb m_ground;
    std::vector<uchar> m_blank;
    AlphaPlane m_distance;
    AlphaPlane m_largest;
};

TextPage::TextPage(const QImage &image, int down)
    : m_image(image.convertToFormat(QImage::Format_ARGB32))
    , m_opaque(!m_image.isNull() && isWhollyOpaque(m_image))
    , m_ground(m_opaque ? borderColor(m_image) : 0)
    , m_blank(size_t(image.height()))
    , m_distance(image.width(), m_opaque ? blockRows + 2 * (down + edgeReach) : 1)
    , m_largest(image.width(), m_opaque ? blockRows + 2 * (down + edgeReach) : 1)
{
    for (int y = 0; y < m_image.height(); ++y) {
        m_blank[size_t(y)] = isUniform(constRow(m_image, y), m_image.width(), m_ground) ? 1 : 0;
    }
}

bool TextPage::isNull() const
{
    return m_image.isNull() || m_distance.isNull() || m_largest.isNull();
}

bool TextPage::hasText(int first, int count) const
{
    const int from = std::clamp(first, 0, m_image.height());
    const int to = std::clamp(first + count, 0, m_image.height());
    return std::any_of(m_blank.begin() + from, m_blank.begin() + to,
                       [](uchar blank) { return blank == 0; });
}

/** Alpha, or in an opaque page the distance to the ground. */
void TextPage::readDistances(int first, int count, AlphaPlane *plane) const
{
    plane->clear(count);
    const int width = m_image.width();
    const int height = m_image.height();
    for (int y = std::max(first, 0); y < std::min(first + count, height); ++y) {
        if (isBlank(y)) {
            continue;
        }
        const QRgb *source = constRow(m_image, y);
        uchar *target = plane->takeRow(y - first);
        if (m_opaque) {
            loops().distances(target, source, m_ground, width);
        } else {
            loops().alphas(target, source, width);
        }
    }
}

void TextPage::readCoverage(int first, int count, AlphaPlane *coverage)
{
    if (!hasText(first, count)) {
        coverage->clear(count);
        return;
    }
    if (!m_opaque) {
        readDistances(first, count, coverage);
        return;
    }
    readDistances(first - edgeReach, count + 2 * edgeReach, &m_distance);
    m_largest.spread(m_distance, edgeReach, edgeReach);
    coverage->clear(count);
    for (int y = 0; y < count; ++y) {
        if (m_distance.isBlank(y + edgeReach)) {
            continue;
        }
        const uchar *distance = m_distance.row(y + edgeReach);
        const uchar *largest = m_largest.row(y);
        loops().ratios(coverage->takeRow(y), distance, largest, m_image.width());
    }
}

/** A blank picture like \a image; null when memory runs out. */
QImage emptyLike(const QImage &image)
{
    QImage result(image.size(), QImage::Format_ARGB32);
    result.setDevicePixelRatio(image.devicePixelRatio());
    result.setDotsPerMeterX(image.dotsPerMeterX());
    result.setDotsPerMeterY(image.dotsPerMeterY());
    return result;
}

/** The end of the run of groups from \a from that hold only zeros, or something each. */
int endOfRun(const uchar *bytes, int from, int width, bool zeros)
{
    static constexpr uchar blank[groupPixels] = {};
    int x = from;
    while (x + groupPixels <= width) {
        if ((std::memcmp(bytes + x, blank, groupPixels) == 0) != zeros) {
            return x;
        }
        x += groupPixels;
    }
    // What is left of a row counts as something: painting where nothing is does no harm.
    return zeros ? x : width;
}

/** An effect: how the coverage is filtered and how pixels are painted from it. */
struct Effect
{
    void (AlphaPlane::*filter)(const AlphaPlane &source, int across, int down);
    Painter paint;
    QRgb outline;
    // Whether painting costs more than finding out where there is nothing to paint.
    bool skips;
};

/** Paints row \a y; runs of pixels that the filtered coverage does not reach may be skipped. */
void paintRow(const TextPage &page, int y, const uchar *coverage, const uchar *filtered,
              const Effect &effect, QRgb *target)
{
    const QRgb *source = constRow(page.image(), y);
    const int width = page.image().width();
    int x = 0;
    while (x < width) {
        const int begin = effect.skips ? endOfRun(filtered, x, width, true) : 0;
        std::memcpy(target + x, source + x, size_t(begin - x) * sizeof(QRgb));
        x = effect.skips ? endOfRun(filtered, begin, width, false) : width;
        effect.paint(target + begin, source + begin, coverage + begin, filtered + begin, x - begin,
                     effect.outline, page.ground());
    }
}

/**
 * The page with \a effect, made block by block so that all planes of a block stay in the cache.
 * Null when memory runs out.
 */
QImage repainted(TextPage *page, int radius, const Effect &effect)
{
    const QImage &source = page->image();
    // A radius beyond the image makes no difference.
    const int across = std::min(radius, source.width());
    const int down = std::min(radius, source.height());
    QImage result = emptyLike(source);
    AlphaPlane coverage(source.width(), blockRows + 2 * down);
    AlphaPlane filtered(source.width(), blockRows + 2 * down);
    if (result.isNull() || coverage.isNull() || filtered.isNull()) {
        return QImage();
    }
    for (int first = 0; first < source.height(); first += blockRows) {
        const int count = std::min(blockRows, source.height() - first);
        page->readCoverage(first - down, count + 2 * down, &coverage);
        (filtered.*effect.filter)(coverage, across, down);
        for (int i = 0; i < count; ++i) {
            const int y = first + i;
            auto *target = reinterpret_cast<QRgb *>(result.scanLine(y));
            if (!filtered.isBlank(i)) {
                paintRow(*page, y, coverage.row(i + down), filtered.row(i), effect, target);
            } else if (page->isBlank(y) && !page->isOpaque()) {
                std::memset(target, 0, size_t(source.bytesPerLine()));
            } else {
                std::memcpy(target, constRow(source, y), size_t(source.bytesPerLine()));
            }
        }
    }
    return result;
}

} // namespace

QImage getStrokeImage(const QImage &image, const QColor &color, int radius)
{
    if (image.isNull() || radius < 1 || !color.isValid() || color.alpha() == 0) {
        return image;
    }
    TextPage page(image, std::min(radius, image.height()));
    if (page.isNull()) {
        return image;
    }
    const Painter paint = page.isOpaque() ? loops().strokeOnGround : loops().strokeOnTransparent;
    const QImage result =
        repainted(&page, radius, {&AlphaPlane::spread, paint, color.rgba(), true});
    return result.isNull() ? image : result;
}

QImage getHollowImage(const QImage &image, int radius)
{
    if (image.isNull() || radius < 1) {
        return image;
    }
    TextPage page(image, std::min(radius, image.height()));
    if (page.isNull()) {
        return image;
    }
    const Painter paint = page.isOpaque() ? loops().hollowOnGround : loops().hollowOnTransparent;
    const QImage result =
        repainted(&page, radius, {&AlphaPlane::shrink, paint, 0, page.isOpaque()});
    return result.isNull() ? image : result;
}
