// What the guard accepts it accepts again without touching it; what it refuses it explains.

#include "htmlguard.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString html = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    const lctrlsex::GuardedHtml guarded = lctrlsex::guardHtml(html);
    if (!guarded.accepted) {
        const bool explained = !guarded.reason.isEmpty() && !guarded.remedy.isEmpty() &&
                               guarded.line > 0 && guarded.column > 0;
        return explained ? 0 : (std::abort(), 0);
    }
    const lctrlsex::GuardedHtml again = lctrlsex::guardHtml(guarded.html);
    if (!again.accepted || again.html.constData() != guarded.html.constData()) {
        std::abort();
    }
    return 0;
}
