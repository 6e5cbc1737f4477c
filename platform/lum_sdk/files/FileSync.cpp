#include "lum_sdk/files/FileSync.h"

#include "basalt_utilities/ILogger.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace lum {

namespace {

std::string reason()
{
    return std::generic_category().message(errno);
}

} // namespace

std::string syncFile(const std::string& path)
{
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return reason();
    std::string why = ::fsync(file) == 0 ? std::string() : reason();
    ::close(file);
    return why;
}

void syncFolderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    std::string folder = ".";
    if (slash != std::string::npos)
        folder = slash == 0 ? "/" : path.substr(0, slash);
    const std::string why = syncFile(folder);
    if (!why.empty())
        basalt::logWarning("The folder \"" + folder + "\" cannot be synced: " + why);
}

std::string renameFile(const std::string& from, const std::string& to)
{
    if (std::rename(from.c_str(), to.c_str()) != 0)
        return reason();
    syncFolderOf(to);
    return {};
}

std::string removeFile(const std::string& path)
{
    if (::unlink(path.c_str()) != 0 && errno != ENOENT)
        return reason();
    syncFolderOf(path);
    return {};
}

} // namespace lum
