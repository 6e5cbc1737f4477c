#include "model/RowText.h"

#include "basalt_utilities/Utf8.h"

#include <QTextCodec>

std::string rowText(std::string_view text)
{
    if (basalt::isUtf8(text))
        return std::string(text);
    const auto size = static_cast<int>(text.size());
    QString decoded = QTextCodec::codecForName("GB18030")->toUnicode(text.data(), size);
    if (decoded.contains(QChar(QChar::ReplacementCharacter)))
        decoded = QString::fromLatin1(text.data(), size);
    return decoded.toStdString();
}
