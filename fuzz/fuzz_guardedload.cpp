// What the guard accepts, Qt loads, lays out as a page and draws, and comes to an end.

#include "guiapplication.h"
#include "htmlguard.h"
#include "htmlguardpass.h"

#include <QImage>
#include <QPainter>
#include <QTextDocument>

#include <cstdlib>

namespace {

/** A document that loads nothing. */
class ClosedDocument : public QTextDocument
{
protected:
    QVariant loadResource(int type, const QUrl &) override
    {
        return type == ImageResource ? QVariant(QImage(1, 1, QImage::Format_ARGB32))
                                     : QVariant(QByteArray());
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    needGuiApplication();
    const lctrlsex::GuardedHtml guarded =
        lctrlsex::guardHtml(QString::fromUtf8(reinterpret_cast<const char *>(data), int(size)));
    if (!guarded.accepted) {
        return 0;
    }
    lctrlsex::HtmlGuardPass pass(guarded.html);
    pass.run();
    ClosedDocument document;
    document.setHtml(guarded.html);
    // As the pages are laid out; an endless layout shows as a time-out of the fuzzer.
    document.setPageSize(QSizeF(256, 0));
    // The guard stops at 3 000 000 pixels, a view's layout at 8 388 607: the estimate may be so
    // much too low and no more.
    if (document.size().height() > 2.79 * pass.workload().height() + 200) {
        std::abort();
    }
    QImage page(64, 64, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&page);
    document.drawContents(&painter, QRectF(0, 0, 64, 64));
    return 0;
}
