#include "contentplacement.h"

#include "floors.h"

#include <cstring>

using floors::Fill;
using floors::Floor;

namespace {

/** Copying the bytes of \a image into memory that is already there. */
Floor memcpyOf(const QImage &image)
{
    return {"memcpy", [image, target = std::vector<uchar>(size_t(image.sizeInBytes()))]() mutable {
                std::memcpy(target.data(), image.constBits(), target.size());
                benchmark::DoNotOptimize(target.data());
            }};
}

Floor copyOf(const QImage &image)
{
    return {"copy", [image] {
                benchmark::DoNotOptimize(image.copy());
            }};
}

void countBlank(benchmark::State &state, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(0);
    const auto work = [&image] {
        benchmark::DoNotOptimize(lctrlsex::blankRows(image));
    };
    floors::besideFloors(state, work, {memcpyOf(image)});
}

void place(benchmark::State &state, const QSize &size, Fill fill, const QColor &ground,
           bool textTransparent)
{
    const QImage image = floors::pageImage(size, fill, ground);
    const auto work = [&image, size, textTransparent] {
        benchmark::DoNotOptimize(
            lctrlsex::placeContent(image, size, Qt::AlignBottom, textTransparent));
    };
    floors::besideFloors(state, work, {memcpyOf(image), copyOf(image)});
}

void addAll()
{
    const auto add = [](const std::string &name, const auto &run) {
        benchmark::RegisterBenchmark(name.c_str(), run)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    };
    for (const QSize &size : {QSize(256, 64), QSize(1920, 1080), QSize(3840, 2160)}) {
        const std::string pixels =
            '/' + std::to_string(size.width()) + 'x' + std::to_string(size.height());
        add("blankRows" + pixels, [=](benchmark::State &state) { countBlank(state, size); });
        for (Fill fill : {Fill::Line, Fill::Page}) {
            const std::string tail = pixels + (fill == Fill::Line ? "/line" : "/page");
            add("place/transparent" + tail,
                [=](benchmark::State &state) { place(state, size, fill, Qt::transparent, true); });
            add("place/key" + tail,
                [=](benchmark::State &state) { place(state, size, fill, Qt::transparent, false); });
        }
        add("place/opaque page" + pixels,
            [=](benchmark::State &state) { place(state, size, Fill::Line, Qt::darkBlue, false); });
    }
}

} // namespace

int main(int argc, char **argv)
{
    addAll();
    return floors::runBenchmarks(argc, argv);
}
