#include "bench/Limits.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "protocol/StatusKeys.h"
#include "views/find/FindBar.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>

#include <string>

// Finding lines and points by number among 1,000,000 design points on 1,000 lines and 200,000
// results: a key stroke each, until the list of matches is painted. The points change before each.
// Beside it, a walk on one thread that does no more than read every number.

namespace {

constexpr int kLines = 1000;
constexpr int kDesignALine = 1000;
constexpr int kSurveyALine = 200;
constexpr double kLimitMs = 50;

template <class Points>
void fill(Points& points, int pointsALine)
{
    for (int line = 0; line < kLines; ++line) {
        for (int place = 0; place < pointsALine; ++place) {
            typename Points::Point point;
            point.lineNumber = std::to_string(1000 + line);
            point.pointNumber = point.lineNumber + std::to_string(5000 + place);
            points.set(std::move(point));
        }
    }
}

template <class Points>
std::size_t readNumbers(const Points& points)
{
    std::size_t sum = 0;
    for (const auto& [number, line] : points) {
        for (const auto& point : line)
            sum += static_cast<unsigned char>(point.pointNumber.back());
    }
    return sum;
}

void BM_Find(benchmark::State& state)
{
    DesktopHost host;
    DataProcessDataManager manager(&host);
    fill(manager.designPoints(), kDesignALine);
    fill(manager.surveyPoints(), kSurveyALine);
    get_system_status_dictionary().set(status::kProjectOpen, "1");
    QMainWindow window;
    host.setFrame(nullptr, &window);
    window.resize(1280, 800);
    window.show();
    FindBar& bar = *FindBar::of(host);
    bar.open();
    auto& field = *bar.findChild<QLineEdit*>();
    for (auto _ : state) {
        const double walkMs = 1000 * bench::medianOf([&] {
                                  return bench::secondsOf([&] {
                                      benchmark::DoNotOptimize(readNumbers(manager.designPoints()) +
                                                               readNumbers(manager.surveyPoints()));
                                  });
                              });
        std::printf("one thread reads every number in %.1f ms\n", walkMs);
        std::string blanks; // the text with the most readings
        for (int i = 0; i < 2000; ++i)
            blanks += "1 ";
        for (const std::string& text :
             {std::string("1"), std::string("10015"), std::string("15001"), std::string("x"),
              std::string("99999999"), std::string("r1500"), std::string("1500/15005"),
              std::string("19995999"), std::string("S 1 2 3"), blanks}) {
            const double ms = 1000 * bench::medianOf([&] {
                                  field.setText(QStringLiteral("0000"));
                                  QCoreApplication::processEvents();
                                  DesignPoint changed =
                                      *manager.designPoints().find("1000", "10005000");
                                  manager.designPoints().set(std::move(changed));
                                  return bench::secondsOf([&] {
                                      field.setText(QString::fromStdString(text));
                                      QCoreApplication::processEvents();
                                  });
                              });
            bench::report(state, ("find \"" + text.substr(0, 12) + "\" and list it").c_str(), ms,
                          kLimitMs, "ms");
        }
    }
    host.setFrame(nullptr, nullptr);
}

BENCHMARK(BM_Find)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return bench::run(argc, argv);
}
