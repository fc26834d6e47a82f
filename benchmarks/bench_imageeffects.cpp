#include "imageeffects.h"

#include "floors.h"

using floors::Fill;
using floors::Floor;

namespace {

/** A page, its document and the floors of an effect on it. */
struct Subject
{
    Subject(const QSize &size, Fill fill, const QColor &ground)
        : image(floors::pageImage(size, fill, ground))
        , canvas(size, QImage::Format_ARGB32_Premultiplied)
    {
        floors::fillDocument(&document, size, fill);
    }

    [[nodiscard]] Floor copy() const
    {
        return {"copy", [this] {
                    benchmark::DoNotOptimize(image.copy());
                }};
    }

    [[nodiscard]] Floor draw(const QColor &ground)
    {
        return {"draw", [this, ground] {
                    floors::drawDocument(&document, &canvas, ground);
                }};
    }

    QImage image;
    QImage canvas;
    QTextDocument document;
};

void stroke(benchmark::State &state, const QSize &size, Fill fill, int radius, const QColor &ground)
{
    Subject subject(size, fill, ground);
    const auto strokeBy = [&subject](int pixels) {
        return [&subject, pixels] {
            benchmark::DoNotOptimize(getStrokeImage(subject.image, Qt::red, pixels));
        };
    };
    floors::besideFloors(state, strokeBy(radius),
                         {subject.draw(ground), subject.copy(), {"r1", strokeBy(1)}});
}

void hollow(benchmark::State &state, const QSize &size, Fill fill, int radius, const QColor &ground)
{
    Subject subject(size, fill, ground);
    const auto work = [&subject, radius] {
        benchmark::DoNotOptimize(getHollowImage(subject.image, radius));
    };
    floors::besideFloors(state, work, {subject.copy()});
}

using Effect = void (*)(benchmark::State &, const QSize &, Fill, int, const QColor &);

void add(const std::string &name, Effect effect, const QSize &size, Fill fill, int radius,
         const QColor &ground)
{
    const std::string full = name + '/' + std::to_string(size.width()) + 'x' +
                             std::to_string(size.height()) +
                             (fill == Fill::Line ? "/line" : "/page") + "/r" +
                             std::to_string(radius) + (ground.alpha() == 0 ? "" : "/ground");
    benchmark::RegisterBenchmark(
        full.c_str(), [=](benchmark::State &state) { effect(state, size, fill, radius, ground); })
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
}

void addAll()
{
    for (const QSize &size : {QSize(256, 64), QSize(1920, 1080), QSize(3840, 2160)}) {
        for (Fill fill : {Fill::Line, Fill::Page}) {
            for (int radius : {1, 2, 3}) {
                add("stroke", stroke, size, fill, radius, Qt::transparent);
            }
            for (int radius : {1, 2, 3}) {
                add("hollow", hollow, size, fill, radius, Qt::transparent);
            }
        }
    }
    // No goals here: a page on a filled ground, and a radius beyond what the tool bar offers.
    for (Fill fill : {Fill::Line, Fill::Page}) {
        add("stroke", stroke, QSize(1920, 1080), fill, 1, Qt::darkBlue);
        add("hollow", hollow, QSize(1920, 1080), fill, 1, Qt::darkBlue);
        add("stroke", stroke, QSize(1920, 1080), fill, 31, Qt::transparent);
    }
}

} // namespace

int main(int argc, char **argv)
{
    addAll();
    return floors::runBenchmarks(argc, argv);
}
