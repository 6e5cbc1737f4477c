#include "exchange/CsvInput.h"

#include "basalt_utilities/Utf8.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextCodec>

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

constexpr std::size_t kBlockSize = std::size_t(512) * 1024;
constexpr std::string_view kMark = "\xEF\xBB\xBF";

/// The end of the last whole line; 0 when `text` holds none.
std::size_t endOfLines(const char* text, std::size_t size)
{
    const void* const last = ::memrchr(text, '\n', size);
    return last == nullptr ? 0
                           : static_cast<std::size_t>(static_cast<const char*>(last) - text) + 1;
}

std::size_t countLines(std::string_view text)
{
    std::size_t count = 0;
    for (; !text.empty(); ++count) {
        const std::size_t end = text.find('\n');
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return count;
}

} // namespace

QString CsvInput::open(const QString& path)
{
    m_file.setFileName(path);
    if (QFileInfo(path).exists() && !QFileInfo(path).isFile())
        return QCoreApplication::translate("CsvInput", "It is not a file.");
    if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return m_file.errorString();
    if (QString fault = lookThrough(); !fault.isEmpty())
        return fault;
    return rewind() ? QString() : m_file.errorString();
}

bool CsvInput::next(std::string_view& line)
{
    if (m_block.empty() && !nextBlock())
        return false;
    const std::size_t end = m_block.find('\n');
    line = m_block.substr(0, end);
    m_block.remove_prefix(std::min(m_block.size(), line.size() + 1));
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    if (m_codec != nullptr)
        line = decoded(line);
    return true;
}

/// Counts the lines and finds out the encoding.
QString CsvInput::lookThrough()
{
    bool isUtf8 = true;
    bool isFirst = true;
    while (nextBlock()) {
        m_hasMark = m_hasMark || (isFirst && m_blockSize != m_block.size());
        isFirst = false;
        m_lineCount += countLines(m_block);
        isUtf8 = isUtf8 && basalt::isUtf8(m_block);
    }
    if (!isUtf8)
        m_codec = QTextCodec::codecForName(m_hasMark ? "UTF-8" : "GB18030");
    return m_fault;
}

bool CsvInput::rewind()
{
    m_kept = 0;
    m_blockSize = 0;
    m_block = {};
    m_size = m_file.pos();
    return m_file.seek(0);
}

/// Reads until the buffer holds a whole line, or the file ends.
bool CsvInput::nextBlock()
{
    const bool isStart = m_file.pos() == 0;
    if (m_buffer.size() < kBlockSize)
        m_buffer.resize(kBlockSize);
    std::memmove(m_buffer.data(), m_buffer.data() + m_blockSize, m_kept);
    std::size_t lines = 0;
    std::size_t filled = m_kept;
    bool isEnd = false;
    while (lines == 0 && !isEnd) {
        if (filled == m_buffer.size())
            m_buffer.resize(m_buffer.size() * 2);
        const qint64 count =
            m_file.read(m_buffer.data() + filled, static_cast<qint64>(m_buffer.size() - filled));
        if (count < 0)
            m_fault = m_file.errorString();
        isEnd = count <= 0;
        if (count == 0 && m_file.pos() < m_size)
            m_fault = QCoreApplication::translate("CsvInput", "It became shorter meanwhile.");
        const std::size_t added = isEnd ? 0 : static_cast<std::size_t>(count);
        lines = endOfLines(m_buffer.data() + filled, added);
        lines = isEnd ? filled : lines == 0 ? 0 : filled + lines;
        filled += added;
    }
    m_blockSize = lines;
    m_kept = filled - lines;
    m_block = {m_buffer.data(), lines};
    if (isStart && m_block.substr(0, kMark.size()) == kMark)
        m_block.remove_prefix(kMark.size());
    return lines > 0 && m_fault.isEmpty();
}

std::string_view CsvInput::decoded(std::string_view line)
{
    constexpr std::size_t kMost = std::numeric_limits<int>::max() / 4;
    m_decoded = m_codec->toUnicode(line.data(), static_cast<int>(std::min(line.size(), kMost)))
                    .toStdString();
    return m_decoded;
}
