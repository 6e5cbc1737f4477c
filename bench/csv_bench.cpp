#include "basalt_utilities/FixedDecimals.h"
#include "basalt_utilities/LocalTimes.h"
#include "bench/Limits.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/DesignCsvWriter.h"
#include "exchange/ImportSummary.h"
#include "exchange/SurveyCsvReader.h"
#include "exchange/SurveyCsvWriter.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "model/SurveyColumns.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fstream>

// 200,000 survey rows with all columns, and a million design points. An import is compared with a
// thread that finds the separators, converts the numbers and stores nothing; an export with one
// that formats the same values and writes them. The columns of times are compared with the whole
// import and export, the peak memory beyond the points with 64 MiB.

namespace {

constexpr int kLines = 1000;
constexpr int kDesignPerLine = 1000;
constexpr int kSurveyPerLine = 200;
constexpr const char* kZone = "Europe/Berlin"; // with daylight saving

SurveyPoint surveyPoint(int line, int place)
{
    const double value = line * 1000.0 + place + 0.1234;
    SurveyPoint point;
    point.lineNumber = std::to_string(1000 + line);
    point.pointNumber = point.lineNumber + std::to_string(5000 + place);
    point.pointMark = place % 2;
    for (double SurveyPoint::*field :
         {&SurveyPoint::latitude, &SurveyPoint::longitude, &SurveyPoint::referenceLatitude,
          &SurveyPoint::referenceLongitude})
        point.*field = 39 + value / 1e6;
    for (double SurveyPoint::*field :
         {&SurveyPoint::north, &SurveyPoint::referenceNorth, &SurveyPoint::designNorth})
        point.*field = 4411000 + value;
    for (double SurveyPoint::*field :
         {&SurveyPoint::east, &SurveyPoint::referenceEast, &SurveyPoint::designEast})
        point.*field = 511000 + value;
    for (double SurveyPoint::*field :
         {&SurveyPoint::altitude, &SurveyPoint::elevation, &SurveyPoint::designElevation,
          &SurveyPoint::referenceAltitude, &SurveyPoint::referenceDistance})
        point.*field = 1000 + value / 100;
    for (double SurveyPoint::*field :
         {&SurveyPoint::pdop, &SurveyPoint::hdop, &SurveyPoint::vdop, &SurveyPoint::rms,
          &SurveyPoint::horizontalAccuracy, &SurveyPoint::verticalAccuracy,
          &SurveyPoint::antennaHeight, &SurveyPoint::transversalDeviation,
          &SurveyPoint::longitudinalDeviation})
        point.*field = std::fmod(value, 3.0);
    point.satelliteNumber = 20 + place % 9;
    point.epochNumber = 5;
    point.solutionType = place % 7 == 0 ? 5 : 4;
    point.qualityStandard = place % 11;
    // Half a year of days, thirty points an hour.
    point.dateTime = 1700000000000 + line * 15500000LL + place * 120000LL;
    point.startTime = point.dateTime - 5000;
    point.endTime = point.dateTime + 5000;
    point.instrumentType = "GNSS rover 2";
    point.instrumentSerialNumber = "R10-5412F00781";
    point.surveyor = "Zhang San";
    point.obstacle = "iron tower";
    point.satDetail = "G12 R7 C14 E8";
    point.rawOffset = place * 4096LL;
    point.baseStationId = "BASE1";
    return point;
}

struct Data
{
    Data()
    {
        for (int line = 0; line < kLines; ++line) {
            lines << QString::number(1000 + line);
            for (int place = 0; place < kSurveyPerLine; ++place)
                survey.set(surveyPoint(line, place));
            for (int place = 0; place < kDesignPerLine; ++place) {
                const double value = line * 1000.0 + place + 0.1234;
                const std::string number = std::to_string(1000 + line);
                design.set({number, number + std::to_string(5000 + place), 4411000 + value,
                            511000 + value, 1000 + value / 1e4, value / 3e4, place % 2, 0});
            }
        }
        writeSurvey(surveyFile);
        writeDesignForImport();
    }

    void writeSurvey(const QString& path, const QStringList& captions = surveyCaptions()) const
    {
        ProgressReporter progress(nullptr);
        if (!writeSurveyCsv(path, survey, lines, {captions, 0}, progress).isDone())
            std::abort();
    }

    void writeDesignForImport() const
    {
        std::ofstream file(designFile.toStdString());
        std::array<char, basalt::kFixedSize> text{};
        for (const auto& [number, line] : design) {
            for (const DesignPoint& point : line) {
                file << point.pointNumber << ',' << point.lineNumber << ',';
                for (double value : {point.north, point.east, point.elevation, point.azimuth})
                    file.write(text.data(), basalt::writeFixed(text.data(), value, 4) - text.data())
                        << ',';
                file << point.type << ',' << point.status << '\n';
            }
        }
    }

    QTemporaryDir folder;
    QString surveyFile = folder.filePath(QStringLiteral("survey.csv"));
    QString designFile = folder.filePath(QStringLiteral("design.csv"));
    QString outFile = folder.filePath(QStringLiteral("out.csv"));
    QStringList lines;
    DesignPoints design;
    SurveyPoints survey;
};

Data& data()
{
    static Data all;
    return all;
}

/// Which columns of a file are numbers, judged by its first line of data.
std::vector<bool> numberColumns(std::string_view line)
{
    std::vector<bool> areNumbers;
    while (true) {
        const std::size_t end = line.find(',');
        areNumbers.push_back(basalt::wholeDecimal(line.substr(0, end)).has_value());
        if (end == std::string_view::npos)
            return areNumbers;
        line.remove_prefix(end + 1);
    }
}

/// The limit of an import: separators, conversions of numbers, nothing stored.
double plainRead(const QString& path)
{
    return bench::secondsOf([&] {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            std::abort();
        const char* const start = reinterpret_cast<const char*>(file.map(0, file.size()));
        const char* const end = start + file.size();
        const char* const second = static_cast<const char*>(std::memchr(start, '\n', 100000)) + 1;
        const auto length = static_cast<std::size_t>(
            static_cast<const char*>(std::memchr(second, '\n', 100000)) - second);
        const std::vector<bool> areNumbers = numberColumns({second, length});
        double sum = 0;
        for (const char* line = start; line < end;) {
            const auto rest = static_cast<std::size_t>(end - line);
            const char* const lineEnd = static_cast<const char*>(std::memchr(line, '\n', rest));
            for (std::size_t column = 0; line <= lineEnd; ++column) {
                const auto size = static_cast<std::size_t>(lineEnd - line);
                const void* const comma = std::memchr(line, ',', size);
                const char* const fieldEnd =
                    comma == nullptr ? lineEnd : static_cast<const char*>(comma);
                double value = 0;
                if (areNumbers[column])
                    std::from_chars(line, fieldEnd, value);
                sum += value;
                line = fieldEnd + 1;
            }
        }
        benchmark::DoNotOptimize(sum);
    });
}

/// Bytes into a file, through a buffer.
class PlainFile
{
public:
    explicit PlainFile(const QString& path)
        : m_file(::open(path.toLocal8Bit().constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600))
    {
    }
    ~PlainFile()
    {
        flush();
        ::close(m_file);
    }
    PlainFile(const PlainFile&) = delete;
    PlainFile& operator=(const PlainFile&) = delete;

    void add(const std::string& text)
    {
        std::memcpy(room(), text.data(), text.size());
        m_size += text.size();
        m_buffer[m_size++] = ',';
    }
    void add(double value)
    {
        char* const to = room();
        end(std::to_chars(to, to + 400, value, std::chars_format::fixed, 4).ptr);
    }
    void add(std::int64_t value)
    {
        char* const to = room();
        end(std::to_chars(to, to + 400, value).ptr);
    }
    void add(std::int32_t value) { add(std::int64_t(value)); }
    void endLine() { m_buffer[m_size - 1] = '\n'; }

private:
    char* room()
    {
        if (m_size + 1024 > m_buffer.size())
            flush();
        return m_buffer.data() + m_size;
    }
    void end(char* end)
    {
        *end = ',';
        m_size = static_cast<std::size_t>(end - m_buffer.data()) + 1;
    }
    void flush()
    {
        if (::write(m_file, m_buffer.data(), m_size) != static_cast<ssize_t>(m_size))
            std::abort();
        m_size = 0;
    }

    int m_file;
    std::size_t m_size = 0;
    std::vector<char> m_buffer = std::vector<char>(std::size_t(256) * 1024);
};

/// The limit of an export: the same values, formatted and written.
double plainSurveyWrite(const QString& path, const SurveyPoints& points)
{
    return bench::secondsOf([&] {
        PlainFile file(path);
        for (const auto& [number, line] : points) {
            for (const SurveyPoint& point : line) {
                for (const SurveyColumn& column : surveyColumns())
                    std::visit([&](auto field) { file.add(point.*field); }, column.member);
                file.endLine();
            }
        }
    });
}

double plainDesignWrite(const QString& path, const DesignPoints& points)
{
    return bench::secondsOf([&] {
        PlainFile file(path);
        for (const auto& [number, line] : points) {
            for (const DesignPoint& point : line) {
                file.add(point.pointNumber);
                file.add(point.lineNumber);
                file.add(point.north);
                file.add(point.east);
                file.add(point.elevation);
                file.add(point.pointNumber);
                file.add(point.azimuth);
                file.add(point.type);
                file.add(point.status);
                file.endLine();
            }
        }
    });
}

template <class Points, class Read>
double importSeconds(const QString& path, std::size_t expected, Read read)
{
    Points points;
    ImportSummary summary;
    ProgressReporter progress(nullptr);
    bool isRead = false;
    const double seconds =
        bench::secondsOf([&] { isRead = read(path, points, progress, summary, nullptr).isDone(); });
    return isRead && points.pointCount() == expected ? seconds : 1e9;
}

double surveyImport()
{
    return importSeconds<SurveyPoints>(data().surveyFile, kLines * kSurveyPerLine, readSurveyCsv);
}

template <class Work, class Plain>
void reportRatio(benchmark::State& state, const char* what, double limit, Work work, Plain plain)
{
    for (auto _ : state) {
        const double ratio = bench::medianOf([&] {
            const double least = plain();
            const double seconds = work();
            std::printf("%-15s %.3f s, plain %.3f s\n", what, seconds, least);
            return seconds / least;
        });
        bench::report(state, what, ratio, limit);
    }
}

void BM_ImportSurvey(benchmark::State& state)
{
    reportRatio(state, "survey import / plain reading", 2.5, surveyImport,
                [] { return plainRead(data().surveyFile); });
}

void BM_ImportDesign(benchmark::State& state)
{
    reportRatio(
        state, "design import / plain reading", 4,
        [] {
            return importSeconds<DesignPoints>(data().designFile, kLines * kDesignPerLine,
                                               readDesignCsv);
        },
        [] { return plainRead(data().designFile); });
}

void BM_ExportSurvey(benchmark::State& state)
{
    reportRatio(
        state, "survey export / plain writing", 2.5,
        [] { return bench::secondsOf([] { data().writeSurvey(data().outFile); }); },
        [] { return plainSurveyWrite(data().outFile, data().survey); });
}

void BM_ExportDesign(benchmark::State& state)
{
    reportRatio(
        state, "design export / plain writing", 2.5,
        [] {
            return bench::secondsOf([] {
                ProgressReporter progress(nullptr);
                benchmark::DoNotOptimize(
                    writeDesignCsv(data().outFile, data().design, data().lines, false, progress));
            });
        },
        [] { return plainDesignWrite(data().outFile, data().design); });
}

/// All times of the file to text and back, and what that is of the whole.
void BM_Times(benchmark::State& state)
{
    std::vector<std::int64_t> times;
    for (const auto& [number, line] : data().survey) {
        for (const SurveyPoint& point : line)
            times.insert(times.end(), {point.dateTime, point.startTime, point.endTime});
    }
    std::vector<std::array<char, basalt::LocalTimes::kTextSize>> texts(times.size());
    for (auto _ : state) {
        const double written = bench::medianOf([&] {
            const double whole = bench::secondsOf([] { data().writeSurvey(data().outFile); });
            const double part = bench::secondsOf([&] {
                basalt::LocalTimes local;
                for (std::size_t i = 0; i < times.size(); ++i)
                    local.write(texts[i].data(), times[i]);
            });
            return part / whole;
        });
        bench::report(state, "times / survey export", written, 0.2);
        const double read = bench::medianOf([&] {
            const double whole = surveyImport();
            const double part = bench::secondsOf([&] {
                basalt::LocalTimes local;
                for (const auto& text : texts)
                    benchmark::DoNotOptimize(local.read({text.data(), text.size()}));
            });
            return part / whole;
        });
        bench::report(state, "times / survey import", read, 0.2);
    }
}

double peakMiB()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

/// The peak memory of an import, without what a copy of the points takes; for a process of its own,
/// which is started with "--memory kind file".
template <class Points, class Read>
double importMiB(const QString& path, Read read)
{
    const double before = peakMiB();
    Points points;
    ImportSummary summary;
    ProgressReporter progress(nullptr);
    if (!read(path, points, progress, summary, nullptr).isDone())
        std::abort();
    const double imported = peakMiB() - before;
    const Points copy(points);
    const double copied = peakMiB() - before - imported;
    return imported - copied;
}

double askedMiB(const char* kind, const QString& path)
{
    const std::string command = "/proc/" + std::to_string(getpid()) + "/exe --memory " + kind +
                                " '" + path.toStdString() + '\'';
    FILE* const child = popen(command.c_str(), "r");
    std::array<char, 64> answer{};
    const bool hasAnswer = std::fgets(answer.data(), answer.size(), child) != nullptr;
    pclose(child);
    return hasAnswer ? basalt::wholeDecimal(answer.data()).value_or(1e9) : 1e9;
}

void BM_Memory(benchmark::State& state)
{
    for (auto _ : state) {
        bench::report(state, "survey import, peak beyond the points",
                      askedMiB("survey", data().surveyFile), 64, "MiB");
        bench::report(state, "design import, peak beyond the points",
                      askedMiB("design", data().designFile), 64, "MiB");
    }
}

/// Many measurements of one check point, whose counters must not make a row dearer.
void BM_ImportCheckPoints(benchmark::State& state)
{
    const auto fileOf = [](const char* name, bool areCheckPoints) {
        const QString path = data().folder.filePath(QLatin1String(name));
        std::ofstream file(path.toStdString());
        file << "line num,point num\n";
        for (int i = 0; i < kLines * kSurveyPerLine; ++i)
            file << "L," << (areCheckPoints ? std::string("C12345678") : std::to_string(i)) << '\n';
        return path;
    };
    const auto seconds = [](const QString& path) {
        return importSeconds<SurveyPoints>(path, kLines * kSurveyPerLine, readSurveyCsv);
    };
    const QString checks = fileOf("checks.csv", true);
    const QString others = fileOf("others.csv", false);
    reportRatio(
        state, "import of one check point / of as many points", 3, [&] { return seconds(checks); },
        [&] { return seconds(others); });
}

BENCHMARK(BM_Memory)->Iterations(1);
BENCHMARK(BM_ImportSurvey)->Iterations(1);
BENCHMARK(BM_ImportDesign)->Iterations(1);
BENCHMARK(BM_ExportSurvey)->Iterations(1);
BENCHMARK(BM_ExportDesign)->Iterations(1);
BENCHMARK(BM_ImportCheckPoints)->Iterations(1);
BENCHMARK(BM_Times)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    ::setenv("TZ", kZone, 1);
    if (argc == 4 && argv[1] == std::string_view("--memory")) {
        const QString path = QString::fromLocal8Bit(argv[3]);
        std::printf("%.1f\n", argv[2] == std::string_view("survey")
                                  ? importMiB<SurveyPoints>(path, readSurveyCsv)
                                  : importMiB<DesignPoints>(path, readDesignCsv));
        return 0;
    }
    return bench::run(argc, argv);
}
