#include "lum_sdk/files/FileAside.h"

#include "lum_sdk/files/FileSync.h"
#include "lum_sdk/files/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace lum {

namespace {

/// Why the target cannot be replaced, as the system says it; 0 when it can.
int obstacle(const QFileInfo& target)
{
    if (target.isDir())
        return EISDIR;
    if (isDevice(target.filePath()))
        return ENOTSUP;
    return target.exists() && !target.isWritable() ? EACCES : 0;
}

} // namespace

FileAside::FileAside(const QString& target)
{
    QFileInfo info(target);
    if (info.isSymLink())
        info.setFile(info.exists() ? info.canonicalFilePath() : info.symLinkTarget());
    m_target = info.absoluteFilePath();
    int error = obstacle(info);
    while (error == 0 && m_path.isEmpty()) {
        const QString path =
            m_target + QLatin1Char('.') + QString::number(QRandomGenerator::global()->generate());
        const int file = ::open(QFile::encodeName(path).constData(),
                                O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
        if (file >= 0) {
            ::close(file);
            m_path = path;
        } else if (errno != EEXIST) {
            error = errno;
        }
    }
    if (error != 0)
        m_fault = qt_error_string(error);
}

FileAside::~FileAside()
{
    if (!m_path.isEmpty())
        QFile::remove(m_path);
}

QString FileAside::commit()
{
    if (!m_fault.isEmpty())
        return m_fault;
    const std::string path = m_path.toStdString();
    if (QFile::exists(m_target))
        QFile::setPermissions(m_path, QFile::permissions(m_target));
    std::string why = syncFile(path);
    if (why.empty())
        why = renameFile(path, m_target.toStdString());
    if (!why.empty())
        return QString::fromStdString(why);
    m_path.clear();
    return {};
}

} // namespace lum
