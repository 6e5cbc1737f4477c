#pragma once

#include <QFile>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

class QTextCodec;

/// The lines of a text file, as UTF-8.
///
/// Looks through the whole file first: a file that is not well-formed UTF-8 is taken as GB18030,
/// which field controllers write; behind a byte-order mark, which is skipped, it stays UTF-8, and
/// what is broken becomes U+FFFD. "\n" and "\r\n" end a line, the last may have no end. Memory is
/// needed for a block of the file, or for its longest line.
class CsvInput
{
public:
    /// \returns an empty text, or why the file cannot be read
    [[nodiscard]] QString open(const QString& path);

    [[nodiscard]] std::size_t lineCount() const { return m_lineCount; }

    /// The next line without its end, valid until the next call; false behind the last.
    bool next(std::string_view& line);

    /// Why reading broke off early; empty when it did not.
    [[nodiscard]] const QString& fault() const { return m_fault; }

private:
    QString lookThrough();
    bool rewind();
    bool nextBlock();
    [[nodiscard]] std::string_view decoded(std::string_view line);

    QFile m_file;
    std::vector<char> m_buffer;
    std::size_t m_kept = 0;   ///< bytes in the buffer, the beginning of a line behind the block
    std::string_view m_block; ///< whole lines that are still to be given out
    std::size_t m_blockSize = 0;
    bool m_hasMark = false;
    std::size_t m_lineCount = 0;
    QTextCodec* m_codec = nullptr; ///< null for well-formed UTF-8
    std::string m_decoded;
    QString m_fault;
};
