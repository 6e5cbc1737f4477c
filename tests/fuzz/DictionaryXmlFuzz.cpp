#include "basalt_utilities/Dictionary.h"
#include "Hold.h"
#include "lum_sdk/files/DictionaryXml.h"

#include <QByteArray>
#include <QString>

#include <cstdint>

namespace {

void comesBackByteForByte(const IDictionary& written)
{
    const QByteArray xml = lum::writeDictionary(written);
    basalt::Dictionary read;
    hold(lum::readDictionary(xml, read).isEmpty(), "what was written is well formed");
    holdSame(read, written, "what was written reads back byte for byte");
    hold(lum::writeDictionary(read) == xml, "writing again gives the same file");
}

void isReadWholeOrNotAtAll(const QByteArray& xml)
{
    basalt::Dictionary before;
    before.set("old", "kept");
    basalt::Dictionary after(before);
    if (lum::readDictionary(xml, after).isEmpty())
        comesBackByteForByte(after);
    else
        holdSame(after, before, "a refused text leaves the dictionary as it was");
}

} // namespace

/// Reads the bytes as a file, then writes them as keys and values.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    isReadWholeOrNotAtAll(bytes);

    const std::string_view text(bytes.constData(), size);
    basalt::Dictionary entries;
    entries.set(text.substr(0, size / 2), text.substr(size / 2));
    entries.set(text.substr(size / 2), text.substr(0, size / 2));
    comesBackByteForByte(entries);
    return 0;
}
