#include "lum_desktop_sdkx/frame/FrameState.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Files.h"
#include "basalt_utilities/Product.h"
#include "lum_sdk/files/DictionaryXml.h"

namespace {

std::string statePath()
{
    return basalt::settingsFolder() + "/frame.xml";
}

QByteArray decoded(const IDictionary& values, const char* key)
{
    const std::string_view text = values.text(key);
    return QByteArray::fromBase64(QByteArray(text.data(), static_cast<int>(text.size())));
}

} // namespace

FrameState FrameState::load()
{
    basalt::Dictionary values;
    if (!file_system_check_file(statePath()) || !xml_to_dictionary(statePath(), values))
        return {};
    return {decoded(values, "geometry"), decoded(values, "tool_bars"), decoded(values, "docks")};
}

void FrameState::save() const
{
    basalt::Dictionary values;
    values.set("geometry", geometry.toBase64().toStdString());
    values.set("tool_bars", toolBars.toBase64().toStdString());
    values.set("docks", docks.toBase64().toStdString());
    if (file_system_create_dir(basalt::settingsFolder()))
        dictionary_to_xml(values, statePath());
}
