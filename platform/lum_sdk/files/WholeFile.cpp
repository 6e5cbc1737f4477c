#include "lum_sdk/files/WholeFile.h"

#include <QByteArray>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>

#include <unistd.h>

#include <cerrno>

namespace lum {

QString writeWholeFile(const QString& path, const QByteArray& content)
{
    if (isDevice(path))
        return qt_error_string(ENOTSUP);
    // Unbuffered: a buffered write reports success even when only half of it fits on the disk.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return file.errorString();
    if (file.write(content) != content.size() || ::fsync(file.handle()) != 0) {
        QString fault = file.error() == QFileDevice::NoError
                            ? QStringLiteral("No space left on device")
                            : file.errorString();
        file.cancelWriting(); // replaces the error by its own
        return fault;
    }
    return file.commit() ? QString() : file.errorString();
}

bool isDevice(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

} // namespace lum
