// Bind keys and paths that programmes bring, resolved in data of every shape.

#include "datalines.h"
#include "datapath.h"
#include "inputtext.h"
#include "reply.h"

#include <cstdlib>

using namespace player;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const sources::DataSnapshot snapshot = [] {
        sources::DataSnapshot made;
        made["s"].value = sources::parseJson(R"({"t":"a,b\nc","n":{"m":["1",["2","3"],{"k":"4"}]},
            "r":[{"a":"1","b":{"c":"2"}},{"a":null}],"v":["1","2","3"],"c":[{"a":"1","b":""},{"a":"2"}],"a.b":"dot","m":[["1"],[]]})")
                              .value;
        return made;
    }();
    const QString key = inputText(data, size);
    bool isFound = false;
    const sources::DataValue value = valueOfKey(snapshot, key, "s", &isFound);
    if (!isFound && !value.isMissing()) {
        std::abort();
    }
    for (const int perLine : {0, 1, 2}) {
        DataLines lines(snapshot, key, "s", {perLine == 1 ? "," : "\n", perLine});
        int longest = 0;
        for (int line = -1; line <= lines.count(); ++line) {
            const int count = lines.valueCount(line);
            longest = qMax(longest, count);
            if (!lines.valueAt(line, count).isNull() || !lines.value(line, -1).isNull()) {
                std::abort();
            }
            const auto cell = lines.utf8(line, 0);
            const QString text = QString::fromUtf8(cell.data(), int(cell.size()));
            if (cell.data() != nullptr && text != lines.value(line, 0)) {
                std::abort();
            }
        }
        if (longest != lines.longestLine() || (!lines.isFound() && lines.count() > 0)) {
            std::abort();
        }
        if (lines.findField(key) >= 0) {
            Q_UNUSED(lines.value(0, lines.findField(key)))
        }
    }
    return 0;
}
