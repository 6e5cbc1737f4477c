#pragma once

#include <QFile>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

class QTextCodec;

/// The lines of a text file, as UTF-8.
///
/// `open` reads the whole file once to find its encoding: a file that is not well-formed UTF-8 is
/// read as GB18030, which field controllers write. A byte-order mark is skipped; it says that the
/// file is UTF-8, so broken characters become U+FFFD. "\n" and "\r\n" end a line, the last may have
/// no end. The memory holds one block of the file, or its longest line.
class CsvInput
{
public:
    /// \returns an empty text, or why the file cannot be read
    [[nodiscard]] QString open(const QString& path);

    [[nodiscard]] std::size_t lineCount() const { return m_lineCount; }

    /// The next line without its end, valid until the next call; false behind the last.
    bool next(std::string_view& line);

    /// Why reading ended before the end of the file; empty when it did not.
    [[nodiscard]] const QString& fault() const { return m_fault; }

private:
    QString lookThrough();
    bool rewind();
    bool nextBlock();
    [[nodiscard]] std::string_view decoded(std::string_view line);

    QFile m_file;
    std::vector<char> m_buffer;
    std::string_view m_block;    ///< the lines of the buffer that `next` has not given out yet
    std::size_t m_blockSize = 0; ///< bytes of the buffer that are whole lines
    std::size_t m_kept = 0;      ///< bytes behind them, the beginning of the next line
    qint64 m_size = 0;           ///< of the file, when `open` read it
    bool m_hasMark = false;
    std::size_t m_lineCount = 0;
    QTextCodec* m_codec = nullptr; ///< null for well-formed UTF-8
    std::string m_decoded;
    QString m_fault;
};
