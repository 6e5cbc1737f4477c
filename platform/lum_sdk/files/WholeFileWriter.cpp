#include "lum_sdk/files/WholeFileWriter.h"

#include "lum_sdk/files/WholeFile.h"

#include <unistd.h>

#include <cerrno>

namespace lum {

namespace {
constexpr std::size_t kBufferSize = std::size_t(256) * 1024;
} // namespace

WholeFileWriter::WholeFileWriter(const QString& path) : m_file(path)
{
    // Unbuffered: a buffered write reports success even when only half of it fits on the disk.
    if (isDevice(path))
        m_fault = qt_error_string(ENOTSUP);
    else if (!m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        m_fault = m_file.errorString();
    m_buffer.reserve(kBufferSize);
}

void WholeFileWriter::write(std::string_view text)
{
    if (m_buffer.size() + text.size() > kBufferSize)
        flush();
    m_buffer.append(text);
}

QString WholeFileWriter::commit()
{
    flush();
    if (m_fault.isEmpty() && ::fsync(m_file.handle()) != 0)
        m_fault = qt_error_string(errno);
    if (m_fault.isEmpty() && !m_file.commit())
        m_fault = m_file.errorString();
    return m_fault;
}

void WholeFileWriter::flush()
{
    const auto size = static_cast<qint64>(m_buffer.size());
    if (m_fault.isEmpty() && size > 0 && m_file.write(m_buffer.data(), size) != size)
        m_fault = m_file.error() == QFileDevice::NoError ? QStringLiteral("No space left on device")
                                                         : m_file.errorString();
    m_buffer.clear();
}

} // namespace lum
