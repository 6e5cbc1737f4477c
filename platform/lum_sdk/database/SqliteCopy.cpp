#include "lum_sdk/database/SqliteCopy.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

namespace lum {

namespace {

constexpr std::size_t kBlockBytes = std::size_t{1} << 20;
constexpr int kFormatAt = 18;  // the place of the format in the header of the file
constexpr char kLogFormat = 2; // the newest changes may stand in a log beside the file

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};
struct CloseDatabase
{
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};

std::string systemReason()
{
    return std::strerror(errno);
}

/// The file as SQLite has opened it. If we opened the file ourselves, closing it would end all
/// locks of this process on it, SQLite's too.
sqlite3_file* fileOf(sqlite3* database)
{
    sqlite3_file* file = nullptr;
    const int result = sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER,
                                            static_cast<void*>(&file));
    return result == SQLITE_OK && file != nullptr && file->pMethods != nullptr ? file : nullptr;
}

/// Whether the file holds the whole database, without a log beside it.
bool isAllInTheFile(sqlite3_file* file)
{
    std::array<char, 1> format{};
    return file != nullptr &&
           file->pMethods->xRead(file, format.data(), 1, kFormatAt) == SQLITE_OK &&
           format[0] != kLogFormat;
}

std::string copyBytes(sqlite3_file* file, const std::string& to)
{
    const std::unique_ptr<std::FILE, CloseFile> copy(std::fopen(to.c_str(), "wb"));
    if (!copy)
        return systemReason();
    std::setvbuf(copy.get(), nullptr, _IONBF, 0);
    sqlite3_int64 size = 0;
    int result = file->pMethods->xFileSize(file, &size);
    std::vector<char> block(kBlockBytes);
    for (sqlite3_int64 at = 0; result == SQLITE_OK && at < size;) {
        const auto count = std::min<sqlite3_int64>(size - at, kBlockBytes);
        result = file->pMethods->xRead(file, block.data(), static_cast<int>(count), at);
        if (result == SQLITE_OK && std::fwrite(block.data(), 1, static_cast<std::size_t>(count),
                                               copy.get()) != static_cast<std::size_t>(count))
            return systemReason();
        at += count;
    }
    return result == SQLITE_OK ? std::string() : sqlite3_errstr(result);
}

/// SQLite's own copying, four times slower. It also copies what is not in the file yet.
std::string copyPages(sqlite3* from, const std::string& to)
{
    sqlite3* opened = nullptr;
    int result =
        sqlite3_open_v2(to.c_str(), &opened,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    const std::unique_ptr<sqlite3, CloseDatabase> copy(opened);
    if (result != SQLITE_OK)
        return sqlite3_errstr(result);
    sqlite3_exec(copy.get(), "pragma journal_mode=off; pragma synchronous=off", nullptr, nullptr,
                 nullptr);
    sqlite3_backup* const copying = sqlite3_backup_init(copy.get(), "main", from, "main");
    if (copying == nullptr)
        return sqlite3_errmsg(copy.get());
    result = sqlite3_backup_step(copying, -1);
    sqlite3_backup_finish(copying);
    return result == SQLITE_DONE ? std::string() : sqlite3_errstr(result);
}

} // namespace

std::string copyDatabase(sqlite3* from, const std::string& to)
{
    std::remove(to.c_str()); // left by an interrupted copy
    sqlite3_file* const file = fileOf(from);
    // While this connection reads, no other one can change the file.
    const bool isHeld = sqlite3_get_autocommit(from) != 0 &&
                        sqlite3_exec(from, "begin; select count(*) from sqlite_master", nullptr,
                                     nullptr, nullptr) == SQLITE_OK;
    std::string why;
    if (isHeld && isAllInTheFile(file))
        why = copyBytes(file, to);
    else
        why = copyPages(from, to);
    if (isHeld)
        sqlite3_exec(from, "rollback", nullptr, nullptr, nullptr);
    return why;
}

} // namespace lum
