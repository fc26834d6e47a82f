#include "pagefiles.h"

#include "pagerenderer.h"
#include "rasterimage.h"

namespace lctrlsex {

QImage pageFile(const QStringList &files, int page)
{
    if (page < 1 || page > files.size()) {
        return {};
    }
    QImage image = readRasterFile(files.at(page - 1), largestPageFile).image;
    return isPageSize(image.size()) ? image : QImage();
}

} // namespace lctrlsex
