#include "lum_sdk/files/WholeFile.h"

#include <QByteArray>
#include <QSaveFile>
#include <QString>

#include <unistd.h>

namespace lum {

QString writeWholeFile(const QString& path, const QByteArray& content)
{
    // Unbuffered, since a buffered write that only half fits on the disk is reported as done.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return file.errorString();
    if (file.write(content) != content.size() || ::fsync(file.handle()) != 0) {
        file.cancelWriting();
        return file.error() == QFileDevice::NoError ? QStringLiteral("No space left on device")
                                                    : file.errorString();
    }
    return file.commit() ? QString() : file.errorString();
}

} // namespace lum
