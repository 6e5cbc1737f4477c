#pragma once

#include <QString>

namespace lum {

/// For a file that a library writes by its name, such as a database: a new file beside the target
/// that takes its place when it is complete. Without `commit` nothing is left of it. A target that
/// is a link stays one.
class FileAside
{
public:
    /// Makes the file, empty. When that is not possible, `fault` says why.
    explicit FileAside(const QString& target);
    ~FileAside();
    FileAside(const FileAside&) = delete;
    FileAside& operator=(const FileAside&) = delete;

    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] const QString& fault() const { return m_fault; }

    /// Brings the file to the disk and puts it in the target's place. It must be closed.
    /// \returns an empty text, or why the target is as it was
    [[nodiscard]] QString commit();

private:
    QString m_target;
    QString m_path; ///< empty when there is no file
    QString m_fault;
};

} // namespace lum
