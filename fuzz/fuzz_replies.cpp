// Whatever a server or a file delivers becomes a record or a reason, and what was read as a record
// is written so that it is read again as it was. The first byte chooses the format.

#include "keyoffer.h"
#include "reply.h"

#include <cstdlib>

using namespace sources;

static void demand(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    const char *const formats[] = {"csv", "text", "json"};
    const char *const encodings[] = {"", "GB18030", "UTF-16"};
    SourceSettings settings;
    settings.encoding = QString::fromLatin1(encodings[data[0] / 3 % 3]);
    const StopFlag stop(false);
    const Reply reply =
        parseReply(bytes, QString::fromLatin1(formats[data[0] % 3]), settings, stop);
    demand(reply.error.isEmpty() == (reply.value.kind() == DataValue::Kind::Record));
    if (!reply.error.isEmpty()) {
        return 0;
    }
    const QByteArray json = toJson(reply.value);
    const Reply again = parseJson(json);
    demand(again.error.isEmpty() && toJson(again.value) == json);
    demand(isSameRecord(reply.value, reply.value) && rowsOf(reply.value) >= 0);
    const QVector<DataSourceKey> keys = offeredKeys(reply.value);
    demand(keys.size() <= 1000);
    for (const DataSourceKey &key : keys) {
        demand(!key.name.isEmpty() && key.value.size() <= 1000);
    }
    return 0;
}
