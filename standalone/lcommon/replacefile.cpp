#include "replacefile.h"

#include <QSaveFile>

#include <cerrno>
#include <unistd.h>

QString replaceFile(const QString &fileName, const QByteArray &bytes)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString();
    }
    // commit() overlooks a full disk that shows only when the last bytes leave the buffer, and
    // whatever the disk says when it is asked to keep them.
    const bool isWritten = file.write(bytes) == bytes.size() && file.flush();
    if (!isWritten) {
        const QString reason = file.errorString();
        file.cancelWriting();
        return reason;
    }
    if (fdatasync(file.handle()) != 0 && errno != EINVAL && errno != ENOSYS) {
        const QString reason = qt_error_string(errno);
        file.cancelWriting();
        return reason;
    }
    return file.commit() ? QString() : file.errorString();
}
