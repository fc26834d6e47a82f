#pragma once

#include <QColor>
#include <QImage>
#include <QMap>
#include <QRandomGenerator>
#include <QVector>
#include <QtMath>

#include <algorithm>
#include <functional>

/** The image effects one pixel at a time, and random pages to try them on. */
namespace literal {

// The effects word for word, one pixel at a time: what the fast code has to equal.

using Coverage = QVector<QVector<int>>;

inline Coverage filtered(const Coverage &plane, int radius, bool largest)
{
    Coverage result = plane;
    const int height = plane.size();
    const int width = plane[0].size();
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            int found = plane[y][x];
            for (int v = y - radius; v <= y + radius; ++v) {
                for (int u = x - radius; u <= x + radius; ++u) {
                    const bool inside = v >= 0 && v < height && u >= 0 && u < width;
                    const int value = inside ? plane[v][u] : 0;
                    found = largest ? qMax(found, value) : qMin(found, value);
                }
            }
            result[y][x] = found;
        }
    }
    return result;
}

inline Coverage mapped(const QImage &image, const std::function<int(QRgb)> &value)
{
    Coverage plane(image.height(), QVector<int>(image.width()));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            plane[y][x] = value(image.pixel(x, y));
        }
    }
    return plane;
}

inline int alphaOf(QRgb pixel)
{
    return qAlpha(pixel);
}

inline int share(int a, int b)
{
    return (2 * a * b + 255) / 510;
}

inline QImage literalStroke(const QImage &image, const QColor &color, int radius)
{
    const Coverage spread = filtered(mapped(image, alphaOf), radius, true);
    QImage result = image;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb text = image.pixel(x, y);
            const int under = share(share(spread[y][x], color.alpha()), 255 - qAlpha(text));
            const int alpha = qAlpha(text) + under;
            if (alpha == 0) {
                continue;
            }
            const auto over = [&](int front, int back) {
                return (2 * (front * qAlpha(text) + back * under) + alpha) / (2 * alpha);
            };
            result.setPixel(x, y,
                            qRgba(over(qRed(text), color.red()), over(qGreen(text), color.green()),
                                  over(qBlue(text), color.blue()), alpha));
        }
    }
    return result;
}

inline QImage literalHollow(const QImage &image, int radius)
{
    const Coverage shrunk = filtered(mapped(image, alphaOf), radius, false);
    QImage result = image;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb text = image.pixel(x, y);
            const int kept = qAlpha(text) - shrunk[y][x];
            const QRgb pixel = qRgba(qRed(text), qGreen(text), qBlue(text), kept);
            result.setPixel(x, y, kept == 0 ? 0 : pixel);
        }
    }
    return result;
}

inline QRgb literalGround(const QImage &image)
{
    QMap<QRgb, int> border;
    for (int x = 0; x < image.width(); ++x) {
        ++border[image.pixel(x, 0)];
        ++border[image.pixel(x, image.height() - 1)];
    }
    for (int y = 0; y < image.height(); ++y) {
        ++border[image.pixel(0, y)];
        ++border[image.pixel(image.width() - 1, y)];
    }
    const auto best = std::max_element(border.cbegin(), border.cend());
    return best.key();
}

inline Coverage literalCoverage(const QImage &image, QRgb ground)
{
    const Coverage distance = mapped(image, [ground](QRgb pixel) {
        return std::max({qAbs(qRed(pixel) - qRed(ground)), qAbs(qGreen(pixel) - qGreen(ground)),
                         qAbs(qBlue(pixel) - qBlue(ground))});
    });
    Coverage coverage = filtered(distance, 2, true);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int full = qMax(coverage[y][x], 16);
            coverage[y][x] = (2 * distance[y][x] * 255 + full) / (2 * full);
        }
    }
    return coverage;
}

/** The largest difference of a channel when \a image is compared to ground + factor * way. */
inline int groundError(const QImage &source, const QImage &result,
                       const std::function<double(int x, int y, int channel)> &expected)
{
    double error = 0;
    for (int y = 0; y < source.height(); ++y) {
        for (int x = 0; x < source.width(); ++x) {
            for (int channel = 0; channel < 3; ++channel) {
                const int value = (result.pixel(x, y) >> (8 * channel)) & 0xff;
                error = qMax(error, qAbs(value - qBound(0.0, expected(x, y, channel), 255.0)));
            }
            if (qAlpha(result.pixel(x, y)) != 255) {
                return 256;
            }
        }
    }
    return qCeil(error - 0.502);
}

/** Blots of random colour and coverage, with empty rows and solid areas between. */
inline QImage randomPage(const QSize &size, quint32 seed)
{
    QRandomGenerator random(seed);
    QImage image(size, QImage::Format_ARGB32);
    image.fill(0);
    for (int y = 0; y < size.height(); ++y) {
        const int kind = random.bounded(3);
        for (int x = 0; kind != 0 && x < size.width(); ++x) {
            const QRgb color = random.generate() & 0xffffff;
            const QRgb alpha = random.bounded(3) ? (kind == 1 ? 255 : 0) : random.bounded(256);
            image.setPixel(x, y, alpha == 0 ? 0 : alpha << 24 | color);
        }
    }
    return image;
}

inline QImage onGround(const QImage &page, const QColor &ground)
{
    QImage image(page.size(), QImage::Format_ARGB32);
    image.fill(ground);
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QRgb text = page.pixel(x, y);
            const QRgb under = image.pixel(x, y);
            const auto over = [&](int t, int g) {
                return (t * qAlpha(text) + g * (255 - qAlpha(text))) / 255;
            };
            image.setPixel(x, y,
                           qRgb(over(qRed(text), qRed(under)), over(qGreen(text), qGreen(under)),
                                over(qBlue(text), qBlue(under))));
        }
    }
    return image;
}

inline int channelOf(QRgb pixel, int channel)
{
    return int(pixel >> (8 * channel)) & 0xff;
}

} // namespace literal
