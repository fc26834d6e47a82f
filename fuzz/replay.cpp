// Runs a fuzz target over the files of the folders named on the command line.

#include <QDirIterator>
#include <QFile>

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int count, char **arguments)
{
    int files = 0;
    for (int i = 1; i < count; ++i) {
        QDirIterator folder(QString::fromLocal8Bit(arguments[i]), QDir::Files);
        while (folder.hasNext()) {
            QFile file(folder.next());
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "%s: cannot be read\n", qPrintable(file.fileName()));
                return 1;
            }
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()),
                                   size_t(bytes.size()));
            ++files;
        }
    }
    std::printf("%d files\n", files);
    return files >= 50 ? 0 : 1;
}
