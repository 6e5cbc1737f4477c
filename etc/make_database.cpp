#include "model/ProjectTables.h"

#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

/// make_database [SQL_FILE] DATABASE: makes a database by the statements of a file, or, without
/// one, the database that new projects start from. It replaces what stands there.
int main(int argc, char* argv[])
{
    if (argc != 2 && argc != 3) {
        std::cerr << "usage: make_database [SQL_FILE] DATABASE\n";
        return 2;
    }
    const char* const path = argv[argc - 1];
    std::string statements = projectTables();
    if (argc == 3) {
        std::ifstream file(argv[1]);
        if (!file) {
            std::cerr << argv[1] << ": missing\n";
            return 1;
        }
        statements.assign(std::istreambuf_iterator<char>(file), {});
    }
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    sqlite3* database = nullptr;
    int result = sqlite3_open(path, &database);
    if (result == SQLITE_OK)
        result = sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        std::cerr << path << ": " << sqlite3_errmsg(database) << '\n';
    sqlite3_close(database);
    return result == SQLITE_OK ? 0 : 1;
}
