#pragma once

#include <QSaveFile>
#include <QString>

#include <string>
#include <string_view>

namespace lum {

/// Does the same as `writeWholeFile` for a file that is too large to be held in memory: it is
/// written piece by piece, and `commit` replaces the old file. Without `commit` nothing is left.
class WholeFileWriter
{
public:
    /// When the file cannot be opened, `fault` says why.
    explicit WholeFileWriter(const QString& path);

    /// Does nothing after a fault.
    void write(std::string_view text);

    /// \returns an empty text, or why the file could not be written
    [[nodiscard]] QString commit();

    /// Why opening or writing failed; empty when neither did.
    [[nodiscard]] const QString& fault() const { return m_fault; }

private:
    void flush();

    QSaveFile m_file;
    std::string m_buffer;
    QString m_fault;
};

} // namespace lum
