#include "movefile.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace workbench {

// Not QFile::rename(): when another process takes the name meanwhile, that one writes over its
// file.
bool moveFile(const QString &from, const QString &to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) ==
        0) {
        return true;
    }
    // File systems that cannot do it so may know links.
    const bool isUnknown = errno == EINVAL || errno == ENOSYS;
    return isUnknown && link(source.constData(), target.constData()) == 0 &&
           unlink(source.constData()) == 0;
}

} // namespace workbench
