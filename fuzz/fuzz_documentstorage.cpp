// What decodes without an error encodes to the same again, but for blanks.

#include "documentstorage.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString stored = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    const lctrlsex::DecodedDocument decoded = lctrlsex::decodeDocument(stored);
    if (!decoded.error.isEmpty()) {
        return decoded.html.isEmpty() ? 0 : (std::abort(), 0);
    }
    QString compact = stored.simplified();
    compact.remove(QLatin1Char(' '));
    if (lctrlsex::encodeDocument(decoded.html) != compact) {
        std::abort();
    }
    return 0;
}
