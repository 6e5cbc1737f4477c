#include "exchange/CsvImport.h"

#include "CsvFixture.h"
#include "model/PointLines.h"
#include "tests/support/Literals.h"

#include <chrono>
#include <functional>

namespace {

/// An import of a file with more lines than the queue between its threads holds.
class FailedImport : public CsvFixture
{
protected:
    using Step = std::function<void(std::size_t line)>;

    FailedImport()
    {
        points.set({"L", "1", 1, 1, 1, 1, 1, 1});
        points.set({"old", "P", 2, 2, 2, 2, 2, 2});
    }

    /// Ends the program when the import waits for ever. `reading` and `filing` may throw.
    Outcome import(const Step& reading, const Step& filing)
    {
        const QString name = file(QByteArray("a line\n").repeated(100000));
        std::future<Outcome> outcome = std::async(std::launch::async, [&] {
            ProgressReporter nobody(nullptr);
            DesignPoints staged;
            return importCsv(
                {name, nobody, summary, QString()}, points, staged,
                [&](std::string_view, DesignPoint& point, const ImportSummary& counts) {
                    reading(counts.linesRead);
                    point = {"L", std::to_string(counts.linesRead), 9, 9, 9, 9, 9, 9};
                    return true;
                },
                [&](DesignPoint&& point) -> DesignPoint& {
                    filing(staged.pointCount());
                    return staged.set(std::move(point));
                });
        });
        if (outcome.wait_for(std::chrono::seconds(60)) != std::future_status::ready)
            qFatal("The import waits for ever.");
        return outcome.get();
    }

    void expectFailure(const Outcome& outcome, const char* reason) const
    {
        EXPECT_EQ(outcome.kind(), Outcome::Kind::Failed);
        EXPECT_EQ(outcome.text(),
                  "\"%1\" cannot be read: %2\nThe points are as they were before."_q.arg(
                      path(), QString::fromUtf8(reason)));
        EXPECT_EQ(summary.pointsNew + summary.pointsReplaced + summary.linesRead, 0U);
        EXPECT_EQ(points.pointCount(), 2U);
        EXPECT_EQ(points.find("L", "1")->north, 1);
        EXPECT_EQ(points.find("old", "P")->north, 2);
    }

    DesignPoints points;
};

void nothing(std::size_t /*line*/) {}

} // namespace

TEST_F(FailedImport, ChangesNothing)
{
    expectFailure(import(
                      [](std::size_t line) {
                          if (line == 80000)
                              throw std::runtime_error("broken");
                      },
                      nothing),
                  "broken");
    expectFailure(import(nothing,
                         [](std::size_t count) {
                             if (count == 3)
                                 throw std::bad_alloc();
                         }),
                  "There is not enough memory.");
    expectFailure(import(
                      [&](std::size_t line) {
                          if (line == 1)
                              QFile::resize(path(), 500000);
                      },
                      nothing),
                  "It became shorter meanwhile.");
}
