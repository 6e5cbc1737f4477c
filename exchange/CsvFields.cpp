#include "exchange/CsvFields.h"

#include "lum_sdk/Text.h"

QString shownField(std::string_view field)
{
    constexpr int kMost = 40;
    QString text = lum::toQString(field.substr(0, std::size_t(kMost) * 4));
    for (QChar& character : text) {
        if (!character.isPrint())
            character = QChar::ReplacementCharacter;
    }
    return text.size() <= kMost ? text : text.left(kMost) + QChar(0x2026);
}
