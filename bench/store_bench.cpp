#include "bench/Limits.h"
#include "lum_sdk/database/SqliteSetUp.h"
#include "lum_sdk/files/FileSync.h"
#include "model/DesignRecord.h"
#include "model/SurveyRecord.h"
#include "tests/project/TestProject.h"

#include <sqlite3.h>
#include <sys/resource.h>

#include <array>
#include <cstdlib>

// A million design points and 200,000 results: loading against a loop over the same rows that reads
// every column's text, saving against a loop that inserts ready texts, memory against 1 GiB.

namespace {

constexpr int kLines = 1000;
constexpr int kPointsPerLine = 1000;

/// All texts of a table, ready to be bound.
struct ReadyTexts
{
    std::string table;
    std::size_t columns = 0;
    std::vector<std::string> texts;
};

TestProject bigProject()
{
    TestProject project = TestProject::made(kLines, kPointsPerLine, "");
    for (auto& [number, line] : project.survey) {
        for (SurveyPoint& point : line) {
            point.instrumentType = "GNSS rover, base 2";
            point.instrumentSerialNumber = "R10-5412F00781";
            point.surveyor = "Zhang San";
            point.obstacle = "iron tower";
            point.satDetail = "G12,R7,C14,E8";
        }
    }
    return project;
}

ReadyTexts readyTexts(sqlite3* database, const std::string& table)
{
    ReadyTexts ready;
    ready.table = table;
    sqlite3_stmt* rows = nullptr;
    sqlite3_prepare_v2(database, ("select * from " + table).c_str(), -1, &rows, nullptr);
    ready.columns = static_cast<std::size_t>(sqlite3_column_count(rows));
    while (sqlite3_step(rows) == SQLITE_ROW) {
        for (int i = 0; i < static_cast<int>(ready.columns); ++i) {
            const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(rows, i));
            ready.texts.emplace_back(text == nullptr ? "" : text);
        }
    }
    sqlite3_finalize(rows);
    return ready;
}

/// The limit of a load: one thread, every row, every text.
double plainRead(const std::string& path)
{
    return bench::secondsOf([&] {
        sqlite3* database = nullptr;
        sqlite3_open(path.c_str(), &database);
        long bytes = 0;
        for (const char* sql :
             {"select * from SurveyLineItem", "select * from ExplorationResultItem"}) {
            sqlite3_stmt* rows = nullptr;
            sqlite3_prepare_v2(database, sql, -1, &rows, nullptr);
            const int columns = sqlite3_column_count(rows);
            while (sqlite3_step(rows) == SQLITE_ROW) {
                for (int i = 0; i < columns; ++i) {
                    benchmark::DoNotOptimize(sqlite3_column_text(rows, i));
                    bytes += sqlite3_column_bytes(rows, i);
                }
            }
            sqlite3_finalize(rows);
        }
        sqlite3_close(database);
        benchmark::DoNotOptimize(bytes);
    });
}

void insertAll(sqlite3* database, const ReadyTexts& ready)
{
    std::string sql = "insert into " + ready.table + " values (?";
    for (std::size_t i = 1; i < ready.columns; ++i)
        sql += ",?";
    sqlite3_stmt* row = nullptr;
    sqlite3_prepare_v2(database, (sql + ")").c_str(), -1, &row, nullptr);
    for (std::size_t i = 0; i < ready.texts.size(); i += ready.columns) {
        for (std::size_t column = 0; column < ready.columns; ++column) {
            const std::string& text = ready.texts[i + column];
            sqlite3_bind_text(row, static_cast<int>(column) + 1, text.data(),
                              static_cast<int>(text.size()), SQLITE_STATIC);
        }
        sqlite3_step(row);
        sqlite3_reset(row);
    }
    sqlite3_finalize(row);
}

/// The limit of a save: the same rows into empty tables, in one transaction, to the disk.
double plainWrite(const std::string& path, const std::array<ReadyTexts, 2>& tables)
{
    QFile::remove(QString::fromStdString(path));
    makeDatabase(path);
    return bench::secondsOf([&] {
        sqlite3* database = nullptr;
        sqlite3_open(path.c_str(), &database);
        sqlite3_exec(database, "begin", nullptr, nullptr, nullptr);
        for (const ReadyTexts& table : tables)
            insertAll(database, table);
        sqlite3_exec(database, "commit", nullptr, nullptr, nullptr);
        sqlite3_close(database);
    });
}

/// The project that every benchmark works on, made once.
struct Files
{
    Files()
    {
        makeDatabase(path);
        if (!bigProject().save(path).isDone())
            std::abort();
    }
    QTemporaryDir folder;
    std::string path = folder.filePath(QStringLiteral("p.db")).toStdString();
};

Files& files()
{
    static Files all;
    return all;
}

/// Peak memory of a process that only loads; called first, so that nothing else counts.
double loadedMiB(const std::string& path)
{
    TestProject project;
    if (!project.load(path).isDone() || project.design.pointCount() != 1000000)
        return 1e9;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

void BM_Memory(benchmark::State& state)
{
    const std::string command =
        "/proc/" + std::to_string(getpid()) + "/exe --memory '" + files().path + '\'';
    for (auto _ : state) {
        FILE* const child = popen(command.c_str(), "r");
        std::array<char, 64> answer{};
        const bool hasAnswer = std::fgets(answer.data(), answer.size(), child) != nullptr;
        pclose(child);
        const double mib = hasAnswer ? basalt::readDecimal({answer.data()}) : 1e9;
        bench::report(state, "peak memory of the loaded project", mib, 1024, "MiB");
    }
}

void BM_Load(benchmark::State& state)
{
    const std::string& path = files().path;
    for (auto _ : state) {
        const double ratio = bench::medianOf([&] {
            const double limit = plainRead(path);
            TestProject project;
            const double load = bench::secondsOf([&] { (void)project.load(path); });
            std::printf("load %.2f s, plain read %.2f s\n", load, limit);
            return load / limit;
        });
        bench::report(state, "load / reading every column's text", ratio, 1.2);
    }
}

void BM_Save(benchmark::State& state)
{
    const std::string& path = files().path;
    TestProject project;
    if (!project.load(path).isDone())
        std::abort();
    std::array<ReadyTexts, 2> tables;
    sqlite3* database = nullptr;
    sqlite3_open(path.c_str(), &database);
    tables[0] = readyTexts(database, DesignRecord::kTable);
    tables[1] = readyTexts(database, SurveyRecord::kTable);
    sqlite3_close(database);
    for (auto _ : state) {
        const double ratio = bench::medianOf([&] {
            const double limit = plainWrite(path + "2", tables);
            const double save = bench::secondsOf([&] { (void)project.save(path); });
            std::printf("save %.2f s, plain write %.2f s\n", save, limit);
            return save / limit;
        });
        bench::report(state, "save / inserting ready texts, durably", ratio, 1.2);
    }
}

BENCHMARK(BM_Memory)->Iterations(1);
BENCHMARK(BM_Load)->Iterations(1);
BENCHMARK(BM_Save)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    lum::setUpDatabase();
    if (argc == 3 && argv[1] == std::string("--memory")) {
        std::printf("%.1f\n", loadedMiB(argv[2]));
        return 0;
    }
    return bench::run(argc, argv);
}
