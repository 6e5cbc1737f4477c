#include "exchange/workbook/CellText.h"

#include "lum_sdk/Text.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kMostCharacters = 32767; // as Excel counts them: units of UTF-16

/// What may not stand in XML, though it is valid UTF-16.
bool isForbidden(QChar character)
{
    return character.unicode() >= 0xFFFE;
}

bool isWide(QChar character)
{
    return character.unicode() >= 0x1100 && !character.isLowSurrogate();
}

double widthOf(QChar character)
{
    return isWide(character) ? 2 : 1;
}

} // namespace

void toCellText(std::string_view utf8, std::string& text)
{
    const bool isPlain =
        utf8.size() <= kMostCharacters &&
        std::all_of(utf8.begin(), utf8.end(), [](char c) { return c > 0 && c <= '~'; });
    if (isPlain) {
        text.assign(utf8);
        return;
    }
    QString whole = lum::toQString(utf8).left(kMostCharacters);
    if (!whole.isEmpty() && whole.at(whole.size() - 1).isHighSurrogate()) // half a character
        whole.chop(1);
    for (QChar& character : whole) {
        if (isForbidden(character) || character.isNull())
            character = QChar::ReplacementCharacter;
    }
    text = whole.toStdString();
}

double textWidth(std::string_view utf8)
{
    int width = 0;
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        // The first byte of a character of three or more bytes, and of any other.
        width += byte >= 0xE1 ? 2 : ((byte & 0xC0U) != 0x80 ? 1 : 0);
    }
    return width;
}

int lineCount(const QString& text, double width)
{
    int lines = 1;
    double used = 0;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        const double length = textWidth(word.toStdString());
        if (used > 0 && used + 1 + length > width) {
            ++lines;
            used = 0;
        }
        used += (used > 0 ? 1 : 0) + length;
        if (used > width) { // a text without blanks is broken anywhere
            const int more = static_cast<int>(std::ceil(used / width)) - 1;
            lines += more;
            used -= more * width;
        }
    }
    return lines;
}

double longestWord(const QString& text)
{
    double longest = 0;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        const bool isChinese = std::any_of(word.begin(), word.end(), isWide);
        double length = 0;
        for (const QChar character : word)
            length += widthOf(character);
        longest = std::max(longest, isChinese ? std::min(length, 8.0) : length);
    }
    return longest;
}
