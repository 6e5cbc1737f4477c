#include <sqlite3.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

/// make_database SQL_FILE DATABASE: makes the database by the statements of the file, anew.
int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::cerr << "usage: make_database SQL_FILE DATABASE\n";
        return 2;
    }
    std::ifstream file(argv[1]);
    std::stringstream statements;
    statements << file.rdbuf();
    std::error_code noMatter;
    std::filesystem::remove(argv[2], noMatter);
    sqlite3* database = nullptr;
    int result = file ? sqlite3_open(argv[2], &database) : SQLITE_CANTOPEN;
    if (result == SQLITE_OK)
        result = sqlite3_exec(database, statements.str().c_str(), nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        std::cerr << argv[1] << ": " << (database != nullptr ? sqlite3_errmsg(database) : "missing")
                  << '\n';
    sqlite3_close(database);
    return result == SQLITE_OK ? 0 : 1;
}
