#include "model/ProjectTables.h"

#include <sqlite3.h>

#include <filesystem>
#include <iostream>

/// make_database DATABASE: makes the database that new projects start from, over what stands there.
int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::cerr << "usage: make_database DATABASE\n";
        return 2;
    }
    std::error_code ignored;
    std::filesystem::remove(argv[1], ignored);
    sqlite3* database = nullptr;
    int result = sqlite3_open(argv[1], &database);
    if (result == SQLITE_OK)
        result = sqlite3_exec(database, projectTables().c_str(), nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        std::cerr << argv[1] << ": " << sqlite3_errmsg(database) << '\n';
    sqlite3_close(database);
    return result == SQLITE_OK ? 0 : 1;
}
