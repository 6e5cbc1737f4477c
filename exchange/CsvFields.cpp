#include "exchange/CsvFields.h"

#include "lum_sdk/Text.h"

#include <QCoreApplication>

#include <algorithm>

std::string_view withoutWideBlanks(std::string_view text)
{
    constexpr std::string_view kBlanks[] = {"\u3000", "\u00A0", " ", "\t", "\n", "\v", "\f", "\r"};
    for (bool isCut = true; isCut;) {
        isCut = false;
        for (const std::string_view blank : kBlanks) {
            const bool isFirst = text.starts_with(blank);
            const bool isLast = !isFirst && text.ends_with(blank);
            text.remove_prefix(isFirst ? blank.size() : 0);
            text.remove_suffix(isLast ? blank.size() : 0);
            isCut = isCut || isFirst || isLast;
        }
    }
    return text;
}

std::string_view fieldAt(std::string_view line, std::size_t number)
{
    CsvFields fields(line);
    std::string_view field;
    while (number-- > 0 && fields.next(field)) {
    }
    return field;
}

QString shownField(std::string_view field)
{
    constexpr int kMost = 40;
    QString text = lum::toQString(field.substr(0, std::size_t(kMost) * 4));
    for (QChar& character : text) {
        if (character == QLatin1Char('\t'))
            character = QLatin1Char(' ');
        else if (!character.isPrint())
            character = QChar::ReplacementCharacter;
    }
    return text.size() <= kMost ? text : text.left(kMost) + QChar(0x2026);
}

QString surplusText(std::size_t count, std::string_view rest)
{
    const auto commas = static_cast<std::size_t>(std::count(rest.begin(), rest.end(), ','));
    return QCoreApplication::translate("CsvFields",
                                       "It has %1 fields, of which %2 are read. Cut off: \"%3\"")
        .arg(QString::number(count + commas + 1), QString::number(count), shownField(rest));
}

QString otherSeparator(char separator)
{
    return separator == '\t'
               ? QCoreApplication::translate("CsvFields",
                                             "The fields are separated by tabs, not by commas.")
               : QCoreApplication::translate("CsvFields",
                                             "The fields are separated by \"%1\", not by commas.")
                     .arg(QLatin1Char(separator));
}

QString zeroBytes()
{
    return QCoreApplication::translate(
        "CsvFields", "It holds zero bytes, as UTF-16 does. Save the file as UTF-8.");
}
