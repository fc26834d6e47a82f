#pragma once

#include <QColor>

#include <algorithm>
#include <cstdlib>

namespace lctrlsex {

/** In an opaque page the distance to the ground from which text covers its pixel wholly. */
constexpr int fullDistance = 16;

/**
 * Paints \a count pixels anew from the pixels themselves, the coverage of their text and that
 * coverage after spreading or shrinking; where the latter is 0 the pixel stays as it is.
 * \a outline and \a ground are straight colours that only some painters look at. The target
 * overlaps none of the sources.
 */
using Painter = void (*)(QRgb *target, const QRgb *source, const uchar *coverage,
                         const uchar *filtered, int count, QRgb outline, QRgb ground);

/** The inner loops of the image effects, over \a count values in a row. */
struct Loops
{
    /** The largest or smallest of three; the target may be the first or lie wholly apart. */
    void (*largest)(uchar *target, const uchar *first, const uchar *second, const uchar *third,
                    int count);
    void (*smallest)(uchar *target, const uchar *first, const uchar *second, const uchar *third,
                     int count);

    /** The bits that are set in every pixel. */
    QRgb (*commonBits)(const QRgb *source, int count);

    /** The alpha of each pixel. */
    void (*alphas)(uchar *target, const QRgb *source, int count);

    /** The largest difference of a pixel's red, green and blue from those of \a ground. */
    void (*distances)(uchar *target, const QRgb *source, QRgb ground, int count);

    /** Distances as shares of the largest one nearby (at least fullDistance), in 255ths. */
    void (*ratios)(uchar *target, const uchar *distance, const uchar *largest, int count);

    /** Text over an outline, without and with a ground. */
    Painter strokeOnTransparent;
    Painter strokeOnGround;

    /** Text less what shrinking left of it, without and with a ground. */
    Painter hollowOnTransparent;
    Painter hollowOnGround;
};

/*
 * The loops are compiled for vectors at every optimisation level of the build, and on x86-64 a
 * second time for processors with 32-byte vectors. Chosen by hand at run time, and not by
 * target_clones, because the resolvers of those run before the sanitizers are ready.
 */
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC push_options
#pragma GCC optimize("O3")
#endif

#define LCTRLSEX_LOOPS plainloops
#include "effectloops.inc"
#undef LCTRLSEX_LOOPS

#if defined(__x86_64__)
#if defined(__clang__)
#pragma clang attribute push(__attribute__((target("avx2"))), apply_to = function)
#else
#pragma GCC target("avx2")
#endif
#define LCTRLSEX_LOOPS wideloops
#include "effectloops.inc"
#undef LCTRLSEX_LOOPS
#if defined(__clang__)
#pragma clang attribute pop
#endif
#endif

#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC pop_options
#endif

/** The loops for the processor that the program runs on. */
inline const Loops &loops()
{
#if defined(__x86_64__)
    static const Loops best =
        __builtin_cpu_supports("avx2") ? wideloops::table() : plainloops::table();
#else
    static const Loops best = plainloops::table();
#endif
    return best;
}

} // namespace lctrlsex
