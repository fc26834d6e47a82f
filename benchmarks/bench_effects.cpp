#include "floors.h"
#include "leffectnode.h"
#include "pageeffects.h"

#include <cstring>

using floors::Fill;
using floors::Floor;

namespace {

/** The frame of an effect at its middle, from one page to another, beside what copies a page. */
void frame(benchmark::State &state, int effect, const QSize &size)
{
    const auto premultiplied = [&size](Fill fill, const QColor &ground) {
        return floors::pageImage(size, fill, ground)
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    const QImage under = premultiplied(Fill::Line, Qt::darkBlue);
    const QImage page = premultiplied(Fill::Page, Qt::transparent);
    QImage target(size, QImage::Format_ARGB32_Premultiplied);
    target.fill(Qt::transparent);
    // Not at a half, where nothing moves in some of them.
    constexpr double progress = 0.45;
    const auto work = [&] {
        benchmark::DoNotOptimize(player::effectFrame(effect, under, page, progress, 1));
    };
    const Floor copy{"memcpy", [&] {
                         std::memcpy(target.bits(), page.constBits(), size_t(page.sizeInBytes()));
                         benchmark::ClobberMemory();
                     }};
    const Floor draw{"draw", [&] {
                         QPainter painter(&target);
                         painter.drawImage(0, 0, page);
                     }};
    floors::besideFloors(state, work, {copy, draw});
}

void add(int effect, const QString &name, const QSize &size)
{
    const std::string full = name.toStdString() + '/' + std::to_string(size.width()) + 'x' +
                             std::to_string(size.height());
    benchmark::RegisterBenchmark(full.c_str(),
                                 [=](benchmark::State &state) { frame(state, effect, size); })
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
}

void addAll()
{
    for (const QSize &size : {QSize(256, 64), QSize(1920, 1080)}) {
        const QVector<LEffectItem> effects = LEffectNode::GetDispEffectName();
        for (const LEffectItem &effect : effects) {
            // Two of them show one of both pages as it is, and one shows what the others do.
            if (effect.effectType != LEffectNode::NoEffect &&
                effect.effectType != LEffectNode::Blink &&
                effect.effectType != LEffectNode::RandomEffect) {
                add(effect.effectType, QString(effect.name).remove(QLatin1Char(' ')), size);
            }
        }
        add(player::MoveLeft, QStringLiteral("ContinuousMove"), size);
    }
}

} // namespace

int main(int argc, char **argv)
{
    addAll();
    return floors::runBenchmarks(argc, argv);
}
