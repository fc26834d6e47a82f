#include "hostcalls.h"

#include "ldata.h"

#include <QSet>

#include <dlfcn.h>

namespace HostCalls {

namespace {

QSet<const LData *> s_live;
QStringList s_faults;
std::function<void()> s_strike;
const char *s_struckAt = nullptr;
int s_strikeAt = 0;
int s_count = 0;
bool s_isWatching = false;

/** Where the program or library that holds @p address lies. */
const void *moduleOf(const void *address)
{
    Dl_info info;
    return dladdr(address, &info) != 0 ? info.dli_fbase : nullptr;
}

/** Neither the host library nor this program; with a tail call the caller may be the toolkit. */
bool isFromPlugin(const void *caller)
{
    static const void *const program = moduleOf(reinterpret_cast<const void *>(&moduleOf));
    static const void *const host = moduleOf(&LData::staticMetaObject);
    const void *const module = moduleOf(caller);
    return module != program && module != host;
}

void count(const char *name)
{
    if (!s_isWatching || ++s_count != s_strikeAt) {
        return;
    }
    s_struckAt = name;
    s_strike();
}

} // namespace

void watch(int strikeAt, const std::function<void()> &strike)
{
    s_strike = strike;
    s_strikeAt = strikeAt;
    s_struckAt = nullptr;
    s_count = 0;
    s_isWatching = true;
}

int stop()
{
    s_isWatching = false;
    return s_count;
}

void addLive(const LData *node)
{
    s_live.insert(node);
}

void removeLive(const LData *node)
{
    s_live.remove(node);
}

bool mayCall(const Call &call, const LData *node)
{
    if (s_live.contains(node) || !isFromPlugin(call.caller)) {
        return true;
    }
    s_faults.append(QString::fromLatin1(call.name) + QStringLiteral(" on a node that is gone"));
    return false;
}

void called(const Call &call)
{
    if (s_isWatching && isFromPlugin(call.caller)) {
        count(call.name);
    }
}

void announced()
{
    count("an announcement");
}

const char *struckAt()
{
    return s_struckAt;
}

QStringList takeFaults()
{
    QStringList faults;
    faults.swap(s_faults);
    return faults;
}

} // namespace HostCalls
