#pragma once

#include <QSaveFile>
#include <QString>

#include <string>
#include <string_view>

namespace lum {

/// Writes a file that is too large to be held in memory, piece by piece: aside, then brought to the
/// disk and renamed over what stands there, as `writeWholeFile` does. Without `commit` there is no
/// trace of it.
class WholeFileWriter
{
public:
    /// Whether the file could be opened shows in `fault`.
    explicit WholeFileWriter(const QString& path);

    /// After a fault it writes nothing more.
    void write(std::string_view text);

    /// \returns an empty text, or why the file could not be written
    [[nodiscard]] QString commit();

    /// Why it failed so far; empty when it did not.
    [[nodiscard]] const QString& fault() const { return m_fault; }

private:
    void flush();

    QSaveFile m_file;
    std::string m_buffer;
    QString m_fault;
};

} // namespace lum
