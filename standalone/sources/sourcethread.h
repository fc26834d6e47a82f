#pragma once

class QThread;

namespace sources {

/**
 * A thread for one source, running. One each: a file of a million rows, or a database that does not
 * answer, keeps the thread that reads it busy, and no other source may wait for it. The thread
 * deletes itself after quit(); the application's end waits some seconds for those that are busy.
 */
[[nodiscard]] QThread *startSourceThread(const char *name);

} // namespace sources
