#include "exchange/TextEncoding.h"

#include <QTextCodec>

#include <cstdint>

namespace {

constexpr bool isWithin(unsigned byte, unsigned first, unsigned last)
{
    return byte >= first && byte <= last;
}

/// Counts the character of two bytes.
void countPair(unsigned first, unsigned second, Gb18030Count& count)
{
    const bool isCommon = isWithin(first, 0xA1, 0xA3) || isWithin(first, 0xB0, 0xD7);
    if (second < 0x80)
        ++count.doubtful;
    else if (second >= 0xA1 && isCommon)
        ++count.common;
    else
        ++count.rare;
}

/// Counts what begins at `text`, which is not ASCII. \returns its bytes
std::size_t countCharacter(std::string_view text, Gb18030Count& count)
{
    const auto byte = [&](std::size_t i) -> unsigned {
        return i < text.size() ? static_cast<std::uint8_t>(text[i]) : 0U;
    };
    if (isWithin(byte(0), 0x81, 0xFE)) {
        if (isWithin(byte(1), 0x40, 0xFE) && byte(1) != 0x7F) {
            countPair(byte(0), byte(1), count);
            return 2;
        }
        if (isWithin(byte(1), '0', '9') && isWithin(byte(2), 0x81, 0xFE) &&
            isWithin(byte(3), '0', '9')) {
            ++count.common;
            return 4;
        }
    }
    ++count.faults;
    return 1;
}

} // namespace

QString nameOf(TextEncoding encoding)
{
    return QString::fromLatin1(codecOf(encoding)->name());
}

QTextCodec* codecOf(TextEncoding encoding)
{
    const auto name = [&] {
        switch (encoding) {
        case TextEncoding::Gb18030:
            return "GB18030";
        case TextEncoding::Utf16LowByteFirst:
            return "UTF-16LE";
        case TextEncoding::Utf16HighByteFirst:
            return "UTF-16BE";
        case TextEncoding::Utf8:
            break;
        }
        return "UTF-8";
    };
    return QTextCodec::codecForName(name());
}

TextEncoding encodingOfStart(std::string_view firstBytes)
{
    const auto isZero = [&](std::size_t i) { return firstBytes[i] == '\0'; };
    const std::string_view mark = firstBytes.substr(0, 2);
    const bool hasTwo = firstBytes.size() >= 4;
    if (mark == "\xFF\xFE" || (hasTwo && !isZero(0) && isZero(1) && !isZero(2) && isZero(3)))
        return TextEncoding::Utf16LowByteFirst;
    if (mark == "\xFE\xFF" || (hasTwo && isZero(0) && !isZero(1) && isZero(2) && !isZero(3)))
        return TextEncoding::Utf16HighByteFirst;
    return TextEncoding::Utf8;
}

void countGb18030(std::string_view text, Gb18030Count& count)
{
    for (std::size_t i = 0; i < text.size();) {
        if (static_cast<std::uint8_t>(text[i]) < 0x80U)
            ++i;
        else
            i += countCharacter(text.substr(i), count);
    }
}

TextEncoding likelierEncoding(const basalt::Utf8Count& utf8, const Gb18030Count& gb)
{
    // Of Chinese text in GB18030 about one character in six happens to be well-formed UTF-8.
    if (utf8.faults == 0 || utf8.characters > utf8.faults)
        return TextEncoding::Utf8;
    // Two accents side by side would mostly be a rare character, so a few of those are no proof.
    const bool isChinese = 4 * gb.common + gb.rare > 4 * gb.doubtful + 3;
    const bool isWhole = 20 * gb.faults <= gb.common;
    return isChinese && isWhole ? TextEncoding::Gb18030 : TextEncoding::Utf8;
}
