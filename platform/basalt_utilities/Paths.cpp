#include "basalt_utilities/Paths.h"

#include <cstring>
#include <filesystem>
#include <system_error>

namespace {

constexpr std::string_view kAppDir = "$(APP_DIR)";

std::string executableFolder()
{
    std::error_code fault;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", fault);
    return fault ? std::string(".") : self.parent_path().string();
}

} // namespace

bool process_resolve_path(std::string_view path, char* buffer, std::size_t size)
{
    const std::string resolved = basalt::resolvedPath(path);
    if (size == 0)
        return false;
    buffer[0] = '\0';
    if (resolved.size() >= size)
        return false;
    std::memcpy(buffer, resolved.c_str(), resolved.size() + 1);
    return true;
}

namespace basalt {

std::string resolvedPath(std::string_view path)
{
    std::string text(path);
    for (std::size_t at = text.find(kAppDir); at != std::string::npos;
         at = text.find(kAppDir, at)) {
        const std::string folder = executableFolder();
        text.replace(at, kAppDir.size(), folder);
        at += folder.size();
    }
    return std::filesystem::path(text).lexically_normal().string();
}

} // namespace basalt
