#include "basalt_utilities/Product.h"

#include "basalt_utilities/Paths.h"

#include <cstdlib>
#include <filesystem>

namespace basalt {

namespace {

Product& stored()
{
    static Product product;
    return product;
}

std::string userFolder(const char* variable, const char* below)
{
    const char* folder = std::getenv(variable);
    std::filesystem::path base;
    if (folder != nullptr && folder[0] == '/') { // the XDG rules forbid relative ones
        base = folder;
    } else {
        const char* home = std::getenv("HOME");
        base = std::filesystem::path(home != nullptr ? home : "/tmp") / below;
    }
    return (base / product().organisation / product().name).string();
}

} // namespace

void setProduct(const Product& product)
{
    stored() = product;
}

const Product& product()
{
    return stored();
}

std::string configFolder()
{
    return resolvedPath("$(APP_DIR)/../etc/" + product().organisation + "/config/" +
                        product().name);
}

std::string toolFolder()
{
    return configFolder() + "/Tool/" + product().tool;
}

std::string controlFile(std::string_view page)
{
    return configFolder() + "/ControlXml/" + product().tool + '/' + std::string(page) + ".xml";
}

std::string stateFolder()
{
    return userFolder("XDG_STATE_HOME", ".local/state");
}

std::string settingsFolder()
{
    return userFolder("XDG_CONFIG_HOME", ".config");
}

std::string cacheFolder()
{
    return userFolder("XDG_CACHE_HOME", ".cache");
}

} // namespace basalt
