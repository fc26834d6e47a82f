// A picture or an error, never both or neither.

#include "rasterimage.h"

#include <QLoggingCategory>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const auto quiet =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    Q_UNUSED(quiet)
    const lctrlsex::RasterImage picture =
        lctrlsex::decodeRaster(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    if (picture.image.isNull() == picture.error.isEmpty()) {
        std::abort();
    }
    return 0;
}
