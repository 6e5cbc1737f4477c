#include "bench/Limits.h"
#include "exchange/CoordAgreement.h"
#include "exchange/CoordCompare.h"
#include "exchange/CoordDifferences.h"
#include "exchange/ImportSummary.h"
#include "exchange/SurveyKml.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/database/SqliteSetUp.h"
#include "model/DesignRecord.h"
#include "project/DesignDatabase.h"
#include "project/SurveyDatabase.h"
#include "tests/project/TestProject.h"

#include <QTemporaryDir>

#include <gdal.h>
#include <ogr_api.h>
#include <sqlite3.h>

#include <array>
#include <cstdlib>
#include <optional>

// What goes to other projects and programs: a million design points as a database against a loop
// that inserts ready texts, 200,000 results from a database against loading them, 200,000 results
// on 1,000 lines as KML against a loop that gives ready features to the same driver, and 200,000
// results compared with the project's coordinate system against their transformation alone.

namespace {

constexpr int kLines = 1000;
constexpr int kPointsPerLine = 1000;

const TestProject& project()
{
    static const TestProject made = [] {
        TestProject project = TestProject::made(kLines, kPointsPerLine, "Zhang San");
        for (auto& [number, line] : project.survey) {
            for (SurveyPoint& point : line) {
                point.north = 4400000 + point.north / 100;
                point.east = 450000 + point.latitude * 10;
                point.elevation = point.latitude;
                point.horizontalAccuracy = 0.0123;
                point.solutionType = 4;
            }
        }
        return project;
    }();
    return made;
}

template <class Points>
QStringList linesOf(const Points& points)
{
    QStringList lines;
    for (const auto& [number, line] : points)
        lines << QString::fromStdString(number);
    return lines;
}

ICoordTransform& zone50()
{
    ICoordTransform& transform = get_project_coord_transform();
    basalt::Dictionary system;
    for (const auto& [key, value] :
         {std::pair("ellipsoid_a", "6378137"), std::pair("ellipsoid_f", "298.257223563"),
          std::pair("project_type", "1"), std::pair("org_lon", "117"),
          std::pair("false_east", "500000"), std::pair("factor", "0.9996")})
        system.set(key, value);
    if (transform.initialise(system, system) != 0)
        std::abort();
    return transform;
}

void expectDone(const Outcome& outcome)
{
    if (outcome.isDone())
        return;
    std::fprintf(stderr, "%s\n", outcome.detail().c_str());
    std::abort();
}

/// The texts of all design rows, as they are inserted.
std::vector<std::string> readyTexts()
{
    std::vector<std::string> texts;
    RecordTexts row;
    for (const auto& [number, line] : project().design) {
        for (const DesignPoint& point : line) {
            DesignRecord::write(point, row);
            texts.insert(texts.end(), row.values(), row.values() + row.size());
        }
    }
    return texts;
}

double plainInsert(const std::string& path, const std::vector<std::string>& texts)
{
    QFile::remove(QString::fromStdString(path));
    makeDatabase(path);
    return bench::secondsOf([&] {
        sqlite3* database = nullptr;
        sqlite3_open(path.c_str(), &database);
        sqlite3_exec(database, "begin", nullptr, nullptr, nullptr);
        sqlite3_stmt* row = nullptr;
        sqlite3_prepare_v2(database, "insert into SurveyLineItem values (?,?,?,?,?,?,?,?)", -1,
                           &row, nullptr);
        for (std::size_t i = 0; i < texts.size(); i += 8) {
            for (std::size_t column = 0; column < 8; ++column) {
                const std::string& text = texts[i + column];
                sqlite3_bind_text(row, static_cast<int>(column) + 1, text.data(),
                                  static_cast<int>(text.size()), SQLITE_STATIC);
            }
            sqlite3_step(row);
            sqlite3_reset(row);
        }
        sqlite3_finalize(row);
        sqlite3_exec(database, "commit", nullptr, nullptr, nullptr);
        sqlite3_close(database);
    });
}

void BM_DatabaseExport(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("e.db"));
    const std::vector<std::string> texts = readyTexts();
    const QStringList lines = linesOf(project().design);
    for (auto _ : state) {
        const double ratio = bench::medianOf([&] {
            const double limit = plainInsert(path.toStdString() + "2", texts);
            const double writing = bench::secondsOf([&] {
                ProgressReporter progress(nullptr);
                expectDone(writeDesignDatabase(path, {project().design, lines, false},
                                               project().coordParameters, progress));
            });
            std::printf("export %.2f s, plain insert %.2f s\n", writing, limit);
            return writing / limit;
        });
        bench::report(state, "database export / inserting ready texts, durably", ratio, 1.2);
    }
}

void BM_DatabaseImport(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("i.db"));
    makeDatabase(path.toStdString());
    TestProject results;
    results.survey = project().survey;
    results.coordParameters = project().coordParameters;
    expectDone(results.save(path.toStdString()));
    for (auto _ : state) {
        const double ratio = bench::medianOf([&] {
            TestProject loaded;
            const double limit =
                bench::secondsOf([&] { expectDone(loaded.load(path.toStdString())); });
            SurveyPoints points;
            const double reading = bench::secondsOf([&] {
                ProgressReporter progress(nullptr);
                ImportSummary summary;
                expectDone(readSurveyDatabase(path, {points, results.coordParameters, {}}, progress,
                                              summary));
            });
            std::printf("import %.2f s, load %.2f s\n", reading, limit);
            return points.pointCount() == loaded.survey.pointCount() ? reading / limit : 1e9;
        });
        bench::report(state, "database import / loading the same rows", ratio, 1.3);
    }
}

/// What is written of a feature.
struct ReadyFeature
{
    std::string name;
    std::string description;
    std::vector<std::array<double, 3>> positions;
};
using ReadyLayers = std::vector<std::vector<ReadyFeature>>;

ReadyLayers readBack(const QString& path)
{
    ReadyLayers layers;
    const GDALDatasetH dataset =
        GDALOpenEx(path.toUtf8().constData(), GDAL_OF_VECTOR, nullptr, nullptr, nullptr);
    for (int i = 0; i < GDALDatasetGetLayerCount(dataset); ++i) {
        const OGRLayerH layer = GDALDatasetGetLayer(dataset, i);
        std::vector<ReadyFeature>& features = layers.emplace_back();
        while (const OGRFeatureH feature = OGR_L_GetNextFeature(layer)) {
            ReadyFeature& ready = features.emplace_back();
            ready.name = OGR_F_GetFieldAsString(feature, 0);
            ready.description = OGR_F_GetFieldAsString(feature, 1);
            const OGRGeometryH geometry = OGR_F_GetGeometryRef(feature);
            for (int p = 0; p < OGR_G_GetPointCount(geometry); ++p)
                ready.positions.push_back(
                    {OGR_G_GetX(geometry, p), OGR_G_GetY(geometry, p), OGR_G_GetZ(geometry, p)});
            OGR_F_Destroy(feature);
        }
    }
    GDALClose(dataset);
    return layers;
}

void plainFeature(OGRLayerH layer, OGRwkbGeometryType type, const ReadyFeature& ready)
{
    const OGRFeatureH feature = OGR_F_Create(OGR_L_GetLayerDefn(layer));
    OGR_F_SetFieldString(feature, 0, ready.name.c_str());
    OGR_F_SetFieldString(feature, 1, ready.description.c_str());
    OGR_F_SetStyleString(feature,
                         type == wkbPoint25D ? "SYMBOL(c:#2E8B57)" : "PEN(c:#2E8B57,w:2px)");
    const OGRGeometryH geometry = OGR_G_CreateGeometry(type);
    for (const auto& [x, y, z] : ready.positions)
        OGR_G_AddPoint(geometry, x, y, z);
    OGR_F_SetGeometryDirectly(feature, geometry);
    if (OGR_L_CreateFeature(layer, feature) != OGRERR_NONE)
        std::abort();
    OGR_F_Destroy(feature);
}

double plainKml(const QString& path, const ReadyLayers& layers)
{
    QFile::remove(path);
    return bench::secondsOf([&] {
        const GDALDatasetH dataset = GDALCreate(
            GDALGetDriverByName("KML"), path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr);
        for (std::size_t i = 0; i < layers.size(); ++i) {
            const OGRwkbGeometryType type = i == 0 ? wkbPoint25D : wkbLineString25D;
            const OGRLayerH layer = GDALDatasetCreateLayer(dataset, i == 0 ? "Points" : "Lines",
                                                           nullptr, type, nullptr);
            for (const char* name : {"Name", "Description"}) {
                const OGRFieldDefnH field = OGR_Fld_Create(name, OFTString);
                OGR_L_CreateField(layer, field, 1);
                OGR_Fld_Destroy(field);
            }
            for (const ReadyFeature& ready : layers[i])
                plainFeature(layer, type, ready);
        }
        GDALClose(dataset);
    });
}

void BM_Kml(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("k.kml"));
    const QStringList lines = linesOf(project().survey);
    const std::function<QString(const SurveyPoint&)> noWords = [](const SurveyPoint&) {
        return QString();
    };
    ICoordTransform& transform = zone50();
    const auto write = [&] {
        ProgressReporter progress(nullptr);
        expectDone(writeSurveyKml(path, {project().survey, lines, noWords}, transform, progress));
    };
    write();
    const ReadyLayers layers = readBack(path);
    if (layers.size() != 2 || layers[0].size() != 200000 || layers[1].size() != kLines)
        std::abort();
    for (auto _ : state) {
        const double ratio = bench::medianOf([&] {
            const double limit = plainKml(folder.filePath(QStringLiteral("p.kml")), layers);
            const double writing = bench::secondsOf(write);
            std::printf("KML %.2f s, plain loop %.2f s\n", writing, limit);
            return writing / limit;
        });
        bench::report(state, "KML / giving ready features to the driver", ratio, 1.1);
    }
}

/// Results whose plane coordinates are nearly those of zone 50, so that every step of the judgement
/// is made.
std::vector<SurveyPoint> otherResults()
{
    std::vector<SurveyPoint> records;
    for (const auto& [number, line] : project().survey) {
        for (SurveyPoint point : line) {
            point.latitude = 38 + static_cast<double>(records.size() % 1000) * 0.0005;
            point.longitude = 116.5 + static_cast<double>(records.size()) * 2.5e-6;
            records.push_back(point);
        }
    }
    return records;
}

void BM_Comparison(benchmark::State& state)
{
    const std::vector<SurveyPoint> records = otherResults();
    ICoordTransform& transform = zone50();
    std::vector<CoordTriple> positions;
    for (const SurveyPoint& record : records)
        positions.push_back({record.latitude, record.longitude, record.altitude});
    std::vector<CoordTriple> plane(positions.size());
    std::vector<std::int32_t> codes(positions.size());
    for (auto _ : state) {
        const double ratio = bench::medianOf([&] {
            const double limit = bench::secondsOf(
                [&] { transform.transformMany(1, 1, 2, 4, positions, plane, codes); });
            std::vector<SurveyPoint> moved = records;
            std::optional<CoordCompare> comparison;
            std::size_t compared = 0;
            const double comparing = bench::secondsOf([&] {
                comparison.emplace(transform.parameters(), transform.parameters(),
                                   std::move(moved));
                compared = differenceFigures(comparison->pairs()).count +
                           coordAgreement(comparison->pairs()).count;
            });
            std::printf("compare %.3f s, transform %.3f s\n", comparing, limit);
            return compared == 2 * records.size() ? comparing / limit : 1e9;
        });
        bench::report(state, "comparison of 200,000 / their transformation", ratio, 1.3);
    }
}

BENCHMARK(BM_DatabaseExport)->Iterations(1);
BENCHMARK(BM_DatabaseImport)->Iterations(1);
BENCHMARK(BM_Kml)->Iterations(1);
BENCHMARK(BM_Comparison)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    lum::setUpDatabase();
    GDALAllRegister();
    return bench::run(argc, argv);
}
