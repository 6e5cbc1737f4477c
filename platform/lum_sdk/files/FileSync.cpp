#include "lum_sdk/files/FileSync.h"

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

std::string syncFolderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return syncFile(".");
    return syncFile(slash == 0 ? "/" : path.substr(0, slash));
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

std::string renameFile(const std::string& from, const std::string& to)
{
    return std::rename(from.c_str(), to.c_str()) == 0 ? syncFolderOf(to) : reason();
}

std::string removeFile(const std::string& path)
{
    return ::unlink(path.c_str()) == 0 || errno == ENOENT ? syncFolderOf(path) : reason();
}

} // namespace lum
