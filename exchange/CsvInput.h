#pragma once

#include "exchange/TextEncoding.h"

#include <QFile>
#include <QString>
#include <QTextCodec>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// The lines of a text file, as UTF-8.
///
/// `open` reads the whole file once to find its encoding: UTF-8, GB18030, or UTF-16. A byte-order
/// mark is skipped; it decides. What is no character becomes U+FFFD, never more than the field that
/// it stands in. "\n" and "\r\n" end a line, the last may have no end. The memory holds one block
/// of the file, or its longest line.
class CsvInput
{
public:
    /// \returns an empty text, or why the file cannot be read
    [[nodiscard]] QString open(const QString& path);

    [[nodiscard]] std::size_t lineCount() const { return m_lineCount; }
    [[nodiscard]] TextEncoding encoding() const { return m_encoding; }

    /// The next line without its end, valid until the next call; false behind the last.
    bool next(std::string_view& line);

    /// The fields of that line, counted from 1, that hold something that is no character.
    [[nodiscard]] const std::vector<std::size_t>& undecodedFields() const { return m_undecoded; }

    /// Why reading ended before the end of the file; empty when it did not.
    [[nodiscard]] const QString& fault() const { return m_fault; }

private:
    QString lookThrough();
    bool rewind();
    bool nextBlock();
    qint64 read(char* to, std::size_t size);
    [[nodiscard]] std::string_view decoded(std::string_view line);
    void decodeField(std::string_view field, std::size_t number);

    QFile m_file;
    std::unique_ptr<QTextDecoder> m_decoder; ///< of UTF-16, which has its line ends in two bytes
    std::vector<char> m_buffer;
    std::string_view m_block;    ///< the lines of the buffer that `next` has not given out yet
    std::size_t m_blockSize = 0; ///< bytes of the buffer that are whole lines
    std::size_t m_kept = 0;      ///< bytes behind them, the beginning of the next line
    qint64 m_size = 0;           ///< of the file, when `open` read it
    bool m_hasMark = false;
    std::size_t m_lineCount = 0;
    TextEncoding m_encoding = TextEncoding::Utf8;
    QTextCodec* m_codec = nullptr; ///< null when the lines are UTF-8 without a fault
    std::string m_decoded;
    std::vector<std::size_t> m_undecoded;
    QString m_fault;
};
