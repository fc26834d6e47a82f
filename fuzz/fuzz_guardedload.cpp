// What the guard accepts, Qt loads and lays out within the height that the guard expected.

#include "htmlguard.h"
#include "htmlguardpass.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
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

QGuiApplication *application()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return new QGuiApplication(count, arguments);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QGuiApplication *const program = application();
    Q_UNUSED(program)
    const lctrlsex::GuardedHtml guarded =
        lctrlsex::guardHtml(QString::fromUtf8(reinterpret_cast<const char *>(data), int(size)));
    if (!guarded.accepted) {
        return 0;
    }
    lctrlsex::HtmlGuardPass pass(guarded.html);
    pass.run();
    ClosedDocument document;
    document.setHtml(guarded.html);
    document.setTextWidth(256);
    // The guard stops at 4 000 000 pixels, Qt at 8 388 607: the estimate may be so much too low.
    if (document.size().height() > 2.05 * pass.workload().height() + 200) {
        std::abort();
    }
    QImage page(64, 64, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&page);
    document.drawContents(&painter, QRectF(0, 0, 64, 64));
    return 0;
}
