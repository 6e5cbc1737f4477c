#include "lum_sdk/files/DictionaryXml.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/ILogger.h"
#include "lum_sdk/files/WholeFile.h"
#include "lum_sdk/Text.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

/// XML 1.0 has no way to write most control characters, and Qt replaces broken UTF-8 silently.
bool fitsXml(std::string_view text)
{
    const auto isControl = [](char c) {
        const auto code = static_cast<unsigned char>(c);
        return code < 0x20 && c != '\t' && c != '\n' && c != '\r';
    };
    for (const char c : text) {
        if (isControl(c))
            return false;
    }
    const QString decoded = lum::toQString(text);
    const QByteArray again = decoded.toUtf8();
    return !decoded.contains(QChar(0xFFFE)) && !decoded.contains(QChar(0xFFFF)) &&
           std::string_view(again.constData(), static_cast<std::size_t>(again.size())) == text;
}

void writeEntry(QXmlStreamWriter& writer, std::string_view key, std::string_view value)
{
    const QLatin1String base64("base64");
    const auto encoded = [](std::string_view text) {
        return QString::fromLatin1(
            QByteArray::fromRawData(text.data(), static_cast<int>(text.size())).toBase64());
    };
    const bool plain = fitsXml(key) && fitsXml(value);
    writer.writeEmptyElement(QStringLiteral("entry"));
    writer.writeAttribute(QStringLiteral("key"), plain ? lum::toQString(key) : encoded(key));
    writer.writeAttribute(QStringLiteral("value"), plain ? lum::toQString(value) : encoded(value));
    if (!plain)
        writer.writeAttribute(QStringLiteral("encoding"), base64);
}

void readEntry(QXmlStreamReader& reader, basalt::Dictionary& entries)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    const QStringRef encoding = attributes.value(QLatin1String("encoding"));
    if (!attributes.hasAttribute(QLatin1String("key")) ||
        !attributes.hasAttribute(QLatin1String("value"))) {
        reader.raiseError(QStringLiteral("an entry without key or value"));
        return;
    }
    if (!encoding.isEmpty() && encoding != QLatin1String("base64")) {
        reader.raiseError(QStringLiteral("unknown encoding \"%1\"").arg(encoding));
        return;
    }
    QByteArray key = attributes.value(QLatin1String("key")).toUtf8();
    QByteArray value = attributes.value(QLatin1String("value")).toUtf8();
    if (!encoding.isEmpty()) {
        const auto strict = QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors;
        const auto decodedKey = QByteArray::fromBase64Encoding(key, strict);
        const auto decodedValue = QByteArray::fromBase64Encoding(value, strict);
        if (!decodedKey || !decodedValue) {
            reader.raiseError(QStringLiteral("an entry that is not base64"));
            return;
        }
        key = *decodedKey;
        value = *decodedValue;
    }
    entries.set({key.constData(), static_cast<std::size_t>(key.size())},
                {value.constData(), static_cast<std::size_t>(value.size())});
    reader.skipCurrentElement();
}

} // namespace

bool xml_to_dictionary(const std::string& path, IDictionary& dictionary)
{
    return lum::readDictionaryFile(path, dictionary).isEmpty();
}

bool dictionary_to_xml(const IDictionary& dictionary, const std::string& path)
{
    const QString fault =
        lum::writeWholeFile(QString::fromStdString(path), lum::writeDictionary(dictionary));
    if (!fault.isEmpty())
        basalt::logError("Cannot write \"" + path + "\": " + fault.toStdString());
    return fault.isEmpty();
}

namespace lum {

QString readDictionaryFile(const std::string& path, IDictionary& dictionary)
{
    QFile file(QString::fromStdString(path));
    QString fault = file.open(QIODevice::ReadOnly) ? readDictionary(file.readAll(), dictionary)
                                                   : file.errorString();
    if (!fault.isEmpty())
        basalt::logError("Cannot read \"" + path + "\": " + fault.toStdString());
    return fault;
}

QString readDictionary(const QByteArray& xml, IDictionary& dictionary)
{
    QXmlStreamReader reader(xml);
    basalt::Dictionary entries;
    if (reader.readNextStartElement()) {
        if (reader.name() != QLatin1String("dictionary"))
            reader.raiseError(QStringLiteral("a dictionary file begins with <dictionary>"));
        while (!reader.hasError() && reader.readNextStartElement()) {
            if (reader.name() == QLatin1String("entry"))
                readEntry(reader, entries);
            else
                reader.raiseError(QStringLiteral("unknown element <%1>").arg(reader.name()));
        }
    }
    while (!reader.hasError() && !reader.atEnd())
        reader.readNext(); // what follows the root must be well formed too
    if (reader.hasError())
        return QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString());
    dictionary_copy(entries, dictionary);
    return {};
}

QByteArray writeDictionary(const IDictionary& dictionary)
{
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(2);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("dictionary"));
    for (std::size_t i = 0; i < dictionary.size(); ++i)
        writeEntry(writer, dictionary.keyAt(i), dictionary.valueAt(i));
    writer.writeEndElement();
    writer.writeEndDocument();
    return xml;
}

} // namespace lum
