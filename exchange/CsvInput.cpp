#include "exchange/CsvInput.h"

#include "exchange/CsvFields.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace {

constexpr std::size_t kBlockSize = std::size_t(512) * 1024;
constexpr std::size_t kLeastRoom = 64; ///< that `read` is given
constexpr std::size_t kNone = std::string_view::npos;
constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::string_view kReplacement = "\xEF\xBF\xBD"; ///< U+FFFD

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
    std::array<char, 4> start{};
    const qint64 size = m_file.read(start.data(), start.size());
    m_encoding =
        encodingOfStart({start.data(), static_cast<std::size_t>(std::max(size, qint64(0)))});
    if (!rewind())
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
    basalt::Utf8Count utf8;
    bool hasReplacements = false;
    for (bool isFirst = true; nextBlock(); isFirst = false) {
        m_hasMark = m_hasMark || (isFirst && m_blockSize != m_block.size());
        m_lineCount += countLines(m_block);
        basalt::countUtf8(m_block, utf8);
        hasReplacements = hasReplacements || (m_decoder && m_block.find(kReplacement) != kNone);
    }
    if (utf8.faults != 0 && !m_hasMark && m_fault.isEmpty() && rewind()) {
        Gb18030Count gb; // a second look, which only a file with faults needs
        while (nextBlock())
            countGb18030(m_block, gb);
        m_encoding = likelierEncoding(utf8, gb);
    }
    if (utf8.faults != 0 || hasReplacements)
        m_codec = codecOf(m_encoding);
    return m_fault;
}

bool CsvInput::rewind()
{
    m_kept = 0;
    m_blockSize = 0;
    m_block = {};
    m_size = std::max(m_size, m_file.pos());
    m_decoder.reset();
    if (m_encoding == TextEncoding::Utf16LowByteFirst ||
        m_encoding == TextEncoding::Utf16HighByteFirst)
        m_decoder.reset(codecOf(m_encoding)->makeDecoder());
    return m_file.seek(0);
}

/// Bytes of the file as they stand, those of UTF-16 as UTF-8.
/// \returns how many; 0 at the end of the file, -1 on failure
qint64 CsvInput::read(char* to, std::size_t size)
{
    if (m_decoder == nullptr)
        return m_file.read(to, static_cast<qint64>(size));
    std::string text;
    while (text.empty()) {
        // Two bytes become three at most; some may wait from the last call.
        const QByteArray bytes = m_file.read(static_cast<qint64>(size / 2 - 4));
        if (bytes.isEmpty() && m_file.error() != QFileDevice::NoError)
            return -1;
        if (bytes.isEmpty() && !m_decoder->needsMoreData())
            return 0;
        text = m_decoder->toUnicode(bytes).toStdString();
        if (bytes.isEmpty()) { // half a character at the end
            m_decoder.reset(codecOf(m_encoding)->makeDecoder());
            text += kReplacement;
        }
    }
    std::copy(text.begin(), text.end(), to);
    return static_cast<qint64>(text.size());
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
        if (m_buffer.size() - filled < kLeastRoom)
            m_buffer.resize(m_buffer.size() * 2);
        const qint64 count = read(m_buffer.data() + filled, m_buffer.size() - filled);
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

/// Decodes field after field, so that a cut character never takes the comma behind it along.
std::string_view CsvInput::decoded(std::string_view line)
{
    m_undecoded.clear();
    m_decoded.clear();
    CsvFields fields(line);
    std::string_view field;
    for (std::size_t number = 1; fields.next(field); ++number) {
        if (number > 1)
            m_decoded += ',';
        decodeField(field, number);
    }
    return m_decoded;
}

void CsvInput::decodeField(std::string_view field, std::size_t number)
{
    constexpr std::size_t kMost = std::numeric_limits<int>::max() / 4;
    const bool isAscii = std::all_of(field.begin(), field.end(), [](char c) { return c >= 0; });
    if (isAscii || (m_encoding != TextEncoding::Gb18030 && basalt::isUtf8(field))) {
        m_decoded += field;
        if (m_decoder != nullptr && field.find(kReplacement) != kNone)
            m_undecoded.push_back(number);
        return;
    }
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QString text =
        m_codec->toUnicode(field.data(), static_cast<int>(std::min(field.size(), kMost)), &state);
    Gb18030Count gb;
    if (m_encoding == TextEncoding::Gb18030)
        countGb18030(field, gb);
    const QChar replacement = QChar::ReplacementCharacter;
    // Half a character at the end: not every codec tells of it.
    if (state.remainingChars != 0 || (gb.faults != 0 && !text.contains(replacement)))
        text += replacement;
    if (text.contains(replacement))
        m_undecoded.push_back(number);
    m_decoded += text.toStdString();
}
