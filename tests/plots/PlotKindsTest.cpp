#include "plots/PlotKinds.h"

#include "tests/plots/PlottedSurvey.h"
#include "tests/support/Literals.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <limits>
#include <random>

namespace {

using Places = std::vector<std::uint32_t>;

constexpr std::int64_t kDay = 86'400'000;

/// Surveys at the edges of what is possible.
PlottedSurvey surveyOf(const QByteArray& name)
{
    PlottedSurvey survey;
    const int count = name == "empty" ? 0 : name == "one result" ? 1 : 1200;
    for (int i = 0; i < count; ++i) {
        const double offset = name == "all equal" ? 0 : 0.001 * (i % 97);
        SurveyPoint& point = survey.stake(std::to_string(10000 + i), offset, -offset);
        point.horizontalAccuracy = 0.01 + offset / 10;
        if (name == "no number")
            point.east = point.elevation = point.horizontalAccuracy = NAN;
        if (name == "no time")
            point.dateTime = i % 2 == 0 ? 0 : std::numeric_limits<std::int64_t>::max();
        if (name == "enormous")
            point.east = point.elevation = i % 3 == 0 ? 1e300 : 1e12;
        if (name == "400 days")
            point.dateTime += i / 3 * kDay;
        if (name == "300 of each")
            point.surveyor = point.instrumentSerialNumber = point.baseStationId =
                "<b>" + std::to_string(i % 300);
        if (name == "long names")
            point.surveyor = point.instrumentSerialNumber = point.baseStationId =
                std::string(200, char('A' + i % 26));
        if (i % 2 == 0) {
            SurveyPoint again = point;
            again.pointNumber += "F";
            again.elevation += offset;
            survey.results.set(again);
        }
    }
    return survey;
}

/// Whether a picture has texts or data: enough places that are not its ground.
bool isDrawn(const QImage& picture)
{
    int drawn = 0;
    for (int y = 0; y < picture.height(); y += 2) {
        for (int x = 0; x < picture.width(); x += 2)
            drawn += picture.pixel(x, y) != picture.pixel(0, 0) ? 1 : 0;
    }
    return drawn > 100;
}

const PlotItem& itemOf(const StatisticsPlot& plot, std::size_t panel = 0)
{
    return *plot.panels()[panel]->items().front();
}

} // namespace

class PlotKindsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySurveyIsShown_data()
    {
        QTest::addColumn<bool>("isEmpty");
        for (const char* name : {"one result", "all equal", "enormous", "no number", "no time",
                                 "400 days", "300 of each", "long names", "empty"})
            QTest::newRow(name) << (QByteArray(name) == "empty");
    }
    void everySurveyIsShown()
    {
        QFETCH(bool, isEmpty);
        const PlottedSurvey survey = surveyOf(QTest::currentDataTag());
        for (const PlotKind& kind : plotKinds()) {
            const auto plot = shownPlot(kind.name, survey.data(), {500, 420});
            if (isEmpty)
                QVERIFY(plot->isEmpty());
            QVERIFY(isDrawn(plot->grab().toImage()));
            for (bool isAll : {true, false}) {
                isAll ? plot->showAll() : plot->showUsual();
                for (const PlotPanel* const panel : plot->panels()) {
                    const auto view = panel->view();
                    QVERIFY(plot->isEmpty() || (view.x.width() > 0 && view.y.width() > 0));
                    QVERIFY(std::isfinite(view.x.width()) && std::isfinite(view.y.width()));
                }
            }
            // Legend and texts leave most of the room to the data.
            QVERIFY(plot->legend().heightFor(500) < 120);
            QVERIFY(plot->isEmpty() || plot->panels().front()->canvas()->height() > 60);
            const QImage before = plot->grab().toImage();
            QImage page(600, 400, QImage::Format_RGB32);
            QPainter painter(&page);
            plot->paint(painter, page.rect());
            QVERIFY(isDrawn(page));
            QCOMPARE(plot->grab().toImage(), before);
            for (const int height : {420, 295, 280, 265, 220, 190}) {
                plot->resize(340, height);
                plot->grab(); // lays it out
                const PlotLegend& legend = plot->legend();
                QVERIFY(legend.height() > legend.heightFor(legend.width()) - 4); // all rows
                for (const PlotPanel* const panel : plot->panels()) {
                    if (plot->isEmpty())
                        continue;
                    const QRect upper = plot->panels().front()->canvas()->geometry();
                    QCOMPARE(panel->canvas()->x(), upper.x()); // one time below the other
                    QVERIFY(std::abs(panel->canvas()->height() - upper.height()) < 12); // a text
                    const auto ticks =
                        panel->axisScaleDiv(QwtPlot::yLeft).ticks(QwtScaleDiv::MajorTick).size();
                    QVERIFY2(ticks >= 2 && ticks <= 12, qPrintable(QString::number(ticks)));
                }
            }
            // What is painted does not depend on the screen.
            QImage again(page.size(), page.format());
            QPainter secondPainter(&again);
            plot->paint(secondPainter, page.rect());
            QCOMPARE(again, page);
        }
    }

    void dataOfNothingTakesAwayWhatWasShown()
    {
        const PlottedSurvey survey = surveyOf("all equal");
        for (const PlotKind& kind : plotKinds()) {
            const auto plot = shownPlot(kind.name, survey.data());
            plot->setData({});
            QVERIFY(plot->isEmpty());
            QVERIFY(plot->panels().front()->items().empty());
            QTest::mouseClick(plot->panels().front()->canvas(), Qt::LeftButton);
            QTest::keyClick(plot.get(), Qt::Key_Plus);
        }
    }

    void aDistanceOnTheLimitIsWithinIt()
    {
        PlottedSurvey survey;
        survey.stake("1", 0.3, 0.4); // 0.5 with rounding
        survey.stake("2", 0.3, 0.41);
        survey.stake("3", 0.1, 0);
        const auto plot = shownPlot("distances", survey.data());
        const PlotPanel& panel = *plot->panels().front();
        const auto hitAt = [&](double distance) {
            const auto hit = itemOf(*plot).hit(placeOf(panel, distance, 0.5), panel.maps(), 2);
            return hit ? hit->places : Places();
        };
        QCOMPARE(hitAt(0.495), Places{0});
        QCOMPARE(hitAt(0.507), Places{1});
        QString legend;
        for (const PlotLegend::Entry& entry : plot->legend().entries())
            legend += entry.text + QLatin1Char('\n');
        QVERIFY2(legend.contains("not farther than the limit: 2\nfarther: 1"_q),
                 qPrintable(legend));
    }

    void aWideClassTellsWhatIsBeyondTheLimit()
    {
        PlottedSurvey survey;
        survey.stake("1", 0.3, 0);
        survey.stake("2", 0.6, 0);
        survey.stake("3", 0.2, 0);
        for (int i = 4; i < 7; ++i)
            survey.stake(std::to_string(i), 5000, 0);
        const auto plot = shownPlot("distances", survey.data());
        const PlotPanel& panel = *plot->panels().front();
        const auto placesAt = [&](double count) {
            return itemOf(*plot).hit(placeOf(panel, 50, count), panel.maps(), 2)->places;
        };
        QCOMPARE(placesAt(1.5), (Places{0, 2}));
        QCOMPARE(placesAt(2.5), Places{1});
        for (const double tick : panel.axisScaleDiv(QwtPlot::yLeft).ticks(QwtScaleDiv::MajorTick))
            QCOMPARE(tick, std::round(tick)); // results are counted
    }

    void atFirstAlmostAllIsSeen()
    {
        PlottedSurvey survey;
        std::mt19937 random(5);
        std::normal_distribution<double> spread(0, 0.1);
        for (int i = 0; i < 3000; ++i)
            survey.stake(std::to_string(10000 + i), 0, 0).elevation += i < 30 ? 50 : spread(random);
        const auto plot = shownPlot("heights", survey.data());
        const auto view = plot->panels().front()->view();
        QVERIFY(view.y.maxValue() < 1);
        QVERIFY(itemOf(*plot).countOutside(view.x, view.y) < 150);
    }

    void heightsStandInTheOrderOfTheStations()
    {
        PlottedSurvey survey;
        survey.stake("2", 0, 0).elevation += 0.2;
        survey.stake("1", 0, 0).elevation += 0.1;
        survey.measure("2", "7").elevation -= 0.3;
        survey.measure("0", "9").designElevation = 0; // without a design elevation
        const auto plot = shownPlot("heights", survey.data());
        const PlotPanel& panel = *plot->panels().front();
        const auto markAt = [&](double station, double height) {
            const auto hit = itemOf(*plot).hit(placeOf(panel, station, height), panel.maps(), 3);
            return hit ? hit->places : Places();
        };
        QCOMPARE(markAt(0, 0.1), Places{1});
        QCOMPARE(markAt(1, 0.2), Places{2});
        QCOMPARE(markAt(2, -0.3), Places{3});
        QVERIFY(plot->note().contains("Results: 3, without a design elevation: 1."_q));
    }

    void pairsAreThoseOfTheShownResults()
    {
        PlottedSurvey survey;
        survey.stake("1", 0, 0);
        survey.measure("1", "1F").elevation += 0.025;
        survey.stake("2", 0, 0);
        survey.measure("1", "2F").elevation -= 0.015;
        PlotData data = survey.data();
        const auto all = shownPlot("bases", data);
        QVERIFY(all->note().startsWith("Pairs: 2,"_q));
        data.places = {0, 3}; // of the second pair only the later result
        const auto one = shownPlot("bases", data);
        QVERIFY(one->note().startsWith("Pairs: 1,"_q));
        const PlotPanel& height = *one->panels().back();
        const auto hit = itemOf(*one, 2).hit(placeOf(height, double(MadeSurvey::kNoonMs), -0.015),
                                             height.maps(), 3);
        QVERIFY(hit && hit->places == Places{3});
    }

    void progressCountsDaysAndSurveyors()
    {
        PlottedSurvey survey;
        for (int i = 0; i < 12; ++i) {
            SurveyPoint& point = survey.stake("1" + std::to_string(i), 0, 0);
            point.dateTime += i / 6 * kDay;
            point.surveyor = i % 3 == 0 ? "Li" : "Wang";
        }
        for (int i = 0; i < 13; ++i)
            survey.plan("2", std::to_string(i)); // left
        const auto plot = shownPlot("progress", survey.data());
        QCOMPARE(plot->note(),
                 "Done: 12 of 25, left: 13. At the present pace of 6 points a day, days of work "
                 "still needed: 3. Last day expected: 2024-07-30."_q);
        PlotData ofCrew = survey.data();
        ofCrew.design = {}; // the design does not say who stakes it
        QCOMPARE(shownPlot("progress", ofCrew)->note(),
                 "Done: 12. Present pace: 6 points a day."_q);
        PlotPanel& days = *plot->panels().front();
        const double second = std::floor(double(MadeSurvey::kNoonMs) / kDay + 1) * kDay;
        Places picked;
        connect(plot.get(), &StatisticsPlot::selected, plot.get(),
                [&](const Places& places) { picked = places; });
        QTest::mouseClick(days.canvas(), Qt::LeftButton, {}, placeOf(days, second, 1));
        QCOMPARE(picked.size(), 2U); // Li's lie below Wang's
        QTest::mouseClick(days.canvas(), Qt::LeftButton, {}, placeOf(days, second, 4));
        QCOMPARE(picked.size(), 4U);
        QCOMPARE(plot->tipAt(days, placeOf(days, second, 4)), "2024-07-27, Wang: 4"_q);
    }

    void onlyPanelsBelowEachOtherMoveTogether()
    {
        const PlottedSurvey survey = surveyOf("400 days");
        const auto plot = shownPlot("day", survey.data());
        PlotPanel& upper = *plot->panels().front();
        PlotPanel& lower = *plot->panels().back();
        plot->setView(upper, upper.zoomed({50, 50}, 0.5));
        QCOMPARE(lower.view().x.width(), upper.view().x.width());
        QCOMPARE(lower.view().y.width(), lower.usualView().y.width());
        QCOMPARE(lower.canvas()->mapTo(plot.get(), QPoint()).x(),
                 upper.canvas()->mapTo(plot.get(), QPoint()).x());
        QCOMPARE(lower.canvas()->width(), upper.canvas()->width());
    }
};

QTEST_MAIN(PlotKindsTest)
#include "PlotKindsTest.moc"
