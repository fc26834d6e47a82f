#pragma once

#include <QStringList>

#include <functional>

class LData;

/**
 * What the loaded plug-in calls of the host, and a stroke of a hostile host in one of these calls.
 *
 * The test program defines operations of the host library itself (interposed.cpp): the dynamic
 * linker prefers a program's definitions, so that the plug-in's calls land there, are counted and
 * may strike, and go on to the library. Calls that the library makes of its own are let pass: a
 * host that deletes an object under its own feet is not the plug-in's concern.
 */
namespace HostCalls {

/** One call: its name, and the address that it returns to. */
struct Call
{
    const char *name;
    const void *caller;
};

/** Counts from now on; calls @p strike once, in the @p strikeAt-th call from 1; 0 for never. */
void watch(int strikeAt, const std::function<void()> &strike);
/** Stops counting and gives the number of calls since watch(). */
int stop();

/** Nodes from their construction until their destructor begins. */
void addLive(const LData *node);
void removeLive(const LData *node);

/** Whether a call may go on to its node; one on a node that is gone is kept as a fault. */
[[nodiscard]] bool mayCall(const Call &call, const LData *node);
/** The call has its result: counts it if it is the plug-in's, and strikes. */
void called(const Call &call);
/** The host announced something: counts, and strikes. */
void announced();

/** Where the stroke fell; null when there was none. */
[[nodiscard]] const char *struckAt();
/** Calls on nodes that were gone, since the last time. */
[[nodiscard]] QStringList takeFaults();

} // namespace HostCalls

#define HOST_CALL(name) (HostCalls::Call{name, __builtin_return_address(0)})
