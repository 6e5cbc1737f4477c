#include "bench/Limits.h"
#include "lum_sdk/Host.h"
#include "project/DataProcessDataManager.h"
#include "views/tables/DesignTableModel.h"
#include "views/tables/SurveyTableModel.h"

#include <QGuiApplication>
#include <QItemSelectionModel>

#include <malloc.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>

// The tables of a large project: a million design points on 1000 lines, and 200,000 results.
// Sorting and filtering stand beside the least that the same work takes.

namespace {

constexpr int kLines = 1000;
constexpr int kDesignPerLine = 1000;
constexpr int kSurveyPerLine = 200;
constexpr int kPageRows = 45;

SurveyPoint surveyPoint(int line, int place)
{
    const double value = std::fmod(line * 1000.0 + place * 37.0, 977.0);
    SurveyPoint point;
    point.lineNumber = std::to_string(1000 + line);
    point.pointNumber = point.lineNumber + std::to_string(5000 + place);
    point.latitude = 39 + value / 1e6;
    point.longitude = 117 + value / 1e6;
    point.north = 4411000 + value;
    point.east = 511000 + value;
    point.transversalDeviation = std::sin(line * 7.0 + place * 13.0);
    point.pdop = 1 + value / 300;
    point.satelliteNumber = 4 + place % 20;
    point.solutionType = place % 7 == 0 ? 5 : 4;
    point.startTime = 1700000000000 + line * 15500000LL + place * 120000LL;
    point.endTime = point.startTime + 5000;
    point.instrumentSerialNumber = "R10-5412F00781";
    point.surveyor = place % 3 == 0 ? "Zhang San" : "Li Si";
    point.qualityStandard = place % 4 == 0 ? 10100003 : 0;
    return point;
}

DataProcessDataManager& manager()
{
    static Host host;
    static DataProcessDataManager all(&host);
    if (!all.surveyPoints().empty())
        return all;
    for (int line = 0; line < kLines; ++line) {
        for (int place = 0; place < kSurveyPerLine; ++place)
            all.surveyPoints().set(surveyPoint(line, place));
        const std::string number = std::to_string(1000 + line);
        for (int place = 0; place < kDesignPerLine; ++place)
            all.designPoints().set({number, number + std::to_string(5000 + place),
                                    4411000.0 + place, 511000.0 + line, 1000, 0, place % 2,
                                    place % 5 == 0 ? 1 : 0});
    }
    return all;
}

int columnOf(const PointTableModel& model, const char* key)
{
    for (int column = 0; column < model.columnCount(); ++column) {
        if (model.columnKey(column) == QLatin1String(key))
            return column;
    }
    std::abort();
}

double usedMiB()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / (1024 * 1024);
}

void BM_AllLines(benchmark::State& state)
{
    const auto design = makeDesignTableModel();
    const auto survey = makeSurveyTableModel();
    manager();
    for (auto _ : state) {
        const double before = usedMiB();
        const auto shown = [](PointTableModel& model) {
            return 1000 * bench::medianOf([&] {
                       model.showNothing();
                       return bench::secondsOf([&] { model.showAllLines(); });
                   });
        };
        bench::report(state, "all lines of 200,000 results shown", shown(*survey), 50, "ms");
        bench::report(state, "all lines of 1,000,000 design points shown", shown(*design), 50,
                      "ms");
        bench::report(state, "memory of both tables", usedMiB() - before, 60, "MiB");
        const double again = bench::medianOf([&] {
            manager().designPoints().set(*manager().designPoints().find("1001", "10015001"));
            const QPersistentModelIndex first(design->index(0, 0));
            const QPersistentModelIndex last(design->index(design->rowCount() - 1, 0));
            return bench::secondsOf([&] { design->refresh(); });
        });
        bench::report(state, "design table refreshed, with a selection", again * 1000, 50, "ms");
    }
}

/// The selection of all rows but one, so that every row is tracked.
void selectAlmostAll(QItemSelectionModel& selection, const PointTableModel& model)
{
    selection.select({model.index(0, 0), model.index(model.rowCount() - 2, 42)},
                     QItemSelectionModel::ClearAndSelect);
}

void BM_Sort(benchmark::State& state)
{
    const auto model = makeSurveyTableModel();
    model->showAllLines();
    const int column = columnOf(*model, "transversal_deviation");
    // Both read the keys from the records: that is a good part of the work.
    const auto plain = [] {
        struct Item
        {
            double key;
            std::uint32_t row;
        };
        return bench::secondsOf([&] {
            std::vector<Item> items;
            items.reserve(static_cast<std::size_t>(kLines * kSurveyPerLine));
            for (const auto& [number, line] : manager().surveyPoints()) {
                for (const SurveyPoint& point : line)
                    items.push_back(
                        {point.transversalDeviation, static_cast<std::uint32_t>(items.size())});
            }
            std::stable_sort(items.begin(), items.end(),
                             [](const Item& a, const Item& b) { return a.key < b.key; });
        });
    };
    const auto sort = [&](int by) {
        model->sortBy(-1, Qt::AscendingOrder);
        return bench::secondsOf([&] { model->sortBy(by, Qt::DescendingOrder); });
    };
    for (auto _ : state) {
        const double ratio = bench::medianOf(
            [&] {
                const double least = plain();
                const double seconds = sort(column);
                std::printf("sort %.5f s, plain %.5f s\n", seconds, least);
                return seconds / least;
            },
            9);
        bench::report(state, "sorting 200,000 rows by a number / std::stable_sort", ratio, 1.5);
        for (const char* const key : {"point_num", "surveyor"}) {
            const double seconds = bench::medianOf([&] { return sort(columnOf(*model, key)); });
            bench::report(state, key, seconds * 1000, 200, "ms");
        }
        QItemSelectionModel selection(model.get());
        selectAlmostAll(selection, *model);
        const double selected = bench::medianOf([&] { return sort(column); });
        bench::report(state, "sorting them with 200,000 selected rows", selected, 0.5, "s");
    }
}

void BM_Filter(benchmark::State& state)
{
    const auto model = makeSurveyTableModel();
    model->showAllLines();
    const int column = columnOf(*model, "transversal_deviation");
    std::size_t found = 0;
    const auto plain = [&] {
        return bench::secondsOf([&] {
            std::vector<std::uint32_t> rows;
            std::uint32_t row = 0;
            for (const auto& [number, line] : manager().surveyPoints()) {
                for (const SurveyPoint& point : line) {
                    if (point.transversalDeviation > 0.5)
                        rows.push_back(row);
                    ++row;
                }
            }
            found = rows.size();
        });
    };
    for (auto _ : state) {
        const double ratio = bench::medianOf(
            [&] {
                model->clearFilters();
                const double least = plain();
                const double seconds =
                    bench::secondsOf([&] { model->setFilter(column, QStringLiteral("> 0.5")); });
                std::printf("filter %.5f s, plain %.5f s\n", seconds, least);
                return seconds / least;
            },
            9);
        if (static_cast<std::size_t>(model->rowCount()) != found)
            std::abort();
        bench::report(state, "filtering 200,000 rows / a plain walk", ratio, 2);
        model->clearFilters();
        const double text = bench::medianOf([&] {
            model->clearFilters();
            return bench::secondsOf([&] {
                model->setFilter(columnOf(*model, "solution_type"), QStringLiteral("!fixed"));
            });
        });
        bench::report(state, "filtering them by a text", text * 1000, 100, "ms");
    }
}

void BM_SelectByName(benchmark::State& state)
{
    const auto model = makeSurveyTableModel();
    model->showAllLines();
    model->sortBy(columnOf(*model, "pdop"), Qt::AscendingOrder);
    model->setFilter(columnOf(*model, "satellite_number"), QStringLiteral("> 5"));
    for (auto _ : state) {
        double longest = 0;
        for (int line = 0; line < kLines; ++line) {
            const SurveyPoint point = surveyPoint(line, 7);
            int row = -1;
            const double seconds = bench::secondsOf([&] {
                row = model->rowOf({point.lineNumber, point.pointNumber});
            });
            if (row < 0)
                std::abort();
            longest = std::max(longest, seconds);
        }
        bench::report(state, "row of a point, sorted and filtered, longest", longest * 1000, 1,
                      "ms");
    }
}

void BM_Page(benchmark::State& state)
{
    const auto model = makeSurveyTableModel();
    model->showAllLines();
    for (auto _ : state) {
        int top = 0;
        const double seconds = bench::medianOf([&] {
            top = (top + 4001) % (model->rowCount() - kPageRows);
            return bench::secondsOf([&] {
                for (int row = top; row < top + kPageRows; ++row) {
                    for (int column = 0; column < model->columnCount(); ++column) {
                        const QModelIndex index = model->index(row, column);
                        for (const int role :
                             {Qt::FontRole, Qt::TextAlignmentRole, Qt::ForegroundRole,
                              Qt::CheckStateRole, Qt::DecorationRole, Qt::DisplayRole,
                              Qt::BackgroundRole})
                            benchmark::DoNotOptimize(index.data(role));
                    }
                }
            });
        });
        bench::report(state, "a page of 45 rows, all columns", seconds * 1000, 4, "ms");
    }
}

BENCHMARK(BM_AllLines)->Iterations(1);
BENCHMARK(BM_Sort)->Iterations(1);
BENCHMARK(BM_Filter)->Iterations(1);
BENCHMARK(BM_SelectByName)->Iterations(1);
BENCHMARK(BM_Page)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return bench::run(argc, argv);
}
