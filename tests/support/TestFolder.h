#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

/// A folder of its own for the files of one test; gone with the test.
class TestFolder
{
public:
    [[nodiscard]] QString path(const QString& name = {}) const
    {
        return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
    }
    [[nodiscard]] QString path(const char* name) const { return path(QString::fromUtf8(name)); }

    /// \returns the path of the new file; empty when it cannot be written
    QString write(const QString& name, const QByteArray& content) const
    {
        QFile file(path(name));
        const bool isWritten =
            file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
        return isWritten ? file.fileName() : QString();
    }
    QString write(const char* name, const QByteArray& content) const
    {
        return write(QString::fromUtf8(name), content);
    }

    /// What stands in the file of this path; "(no file)" without one.
    [[nodiscard]] static QByteArray read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

private:
    QTemporaryDir m_folder;
};
