#pragma once

#include "basalt_utilities/Utf8.h"

#include <QString>

#include <string_view>

class QTextCodec;

enum class TextEncoding
{
    Utf8,
    Gb18030, ///< field controllers in China write it
    Utf16LowByteFirst,
    Utf16HighByteFirst
};

[[nodiscard]] QString nameOf(TextEncoding encoding);

/// Never null.
[[nodiscard]] QTextCodec* codecOf(TextEncoding encoding);

/// Recognises UTF-16 by the first bytes of a file: by its byte-order mark or, without one, by the
/// zero bytes of two ASCII characters. Anything else is answered by UTF-8, to be judged by all of
/// the file.
[[nodiscard]] TextEncoding encodingOfStart(std::string_view firstBytes);

/// What a text holds beside ASCII when it is read as GB18030.
struct Gb18030Count
{
    std::size_t common = 0;   ///< punctuation, the 3755 frequent characters, four-byte characters
    std::size_t rare = 0;     ///< other characters
    std::size_t doubtful = 0; ///< rare ones that may be an accented letter before another letter
    std::size_t faults = 0;   ///< bytes that belong to no character
};

/// Adds what `text`, whole lines, holds.
void countGb18030(std::string_view text, Gb18030Count& count);

/// UTF-8 or GB18030, whichever a whole file is more likely to be. A few cut characters do not turn
/// one into the other, and texts with accents in a Western 8-bit encoding are no Chinese.
[[nodiscard]] TextEncoding likelierEncoding(const basalt::Utf8Count& utf8, const Gb18030Count& gb);
