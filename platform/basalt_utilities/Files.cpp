#include "basalt_utilities/Files.h"

#include "basalt_utilities/ILogger.h"

#include <filesystem>
#include <system_error>

namespace {

bool succeeded(const std::error_code& fault, const std::string& what)
{
    if (!fault)
        return true;
    basalt::logError(what + ": " + fault.message());
    return false;
}

} // namespace

bool file_system_check_file(const std::string& path)
{
    std::error_code fault;
    return std::filesystem::exists(path, fault);
}

bool file_system_copy_file(const std::string& from, const std::string& to)
{
    // Copied beside the target and renamed, so that a full disk never leaves half a file.
    const std::string aside = to + ".part";
    std::error_code fault;
    std::filesystem::copy_file(from, aside, std::filesystem::copy_options::overwrite_existing,
                               fault);
    if (!fault) // the copy of a read-only template must be writable
        std::filesystem::permissions(aside, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add, fault);
    if (!fault)
        std::filesystem::rename(aside, to, fault);
    if (fault) {
        std::error_code ignored;
        std::filesystem::remove(aside, ignored);
    }
    return succeeded(fault, "Cannot copy \"" + from + "\" to \"" + to + "\"");
}

bool file_system_delete_file(const std::string& path)
{
    std::error_code fault;
    std::filesystem::remove(path, fault);
    return succeeded(fault, "Cannot delete \"" + path + "\"");
}

bool file_system_create_dir(const std::string& path)
{
    std::error_code fault;
    std::filesystem::create_directories(path, fault);
    return succeeded(fault, "Cannot make the folder \"" + path + "\"");
}
