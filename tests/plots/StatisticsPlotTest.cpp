#include "plots/StatisticsPlot.h"

#include "tests/plots/PlottedSurvey.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"

#include <QApplication>
#include <QClipboard>
#include <QWheelEvent>

#include <cmath>

namespace {

using Places = std::vector<std::uint32_t>;

void drag(QWidget& canvas, Qt::MouseButton button, const QPoint& from, const QPoint& to,
          bool isReleased = true)
{
    QTest::mousePress(&canvas, button, {}, from);
    for (const double part : {0.5, 1.0}) { // moves of QTest have no buttons
        const QPointF at = from + (to - from) * part;
        QMouseEvent move(QEvent::MouseMove, at, canvas.mapToGlobal(at.toPoint()), Qt::NoButton,
                         button, {});
        QApplication::sendEvent(&canvas, &move);
    }
    if (isReleased)
        QTest::mouseRelease(&canvas, button, {}, to);
}

void turnWheel(QWidget& canvas, const QPoint& at, int notches)
{
    QWheelEvent event(at, canvas.mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&canvas, &event);
}

/// Four results around the design, near the limit of 0.5 m, and one that is far away.
struct FourAndOne
{
    FourAndOne()
    {
        survey.stake("1", 0.3, 0.3);
        survey.stake("2", -0.3, 0.3);
        survey.stake("3", -0.3, -0.3);
        survey.stake("4", 0.3, -0.3);
        data = survey.data();
        plot = shownPlot("offsets", data);
        QObject::connect(plot.get(), &StatisticsPlot::selected,
                         [this](const Places& places) { selected.push_back(places); });
        QObject::connect(plot.get(), &StatisticsPlot::activated,
                         [this](std::uint32_t place) { activated.push_back(place); });
    }
    PlotPanel& panel() { return *plot->panels().front(); }
    QWidget& canvas() { return *panel().canvas(); }
    QPoint at(double east, double north) { return placeOf(panel(), east, north); }

    PlottedSurvey survey;
    PlotData data;
    std::unique_ptr<StatisticsPlot> plot;
    std::vector<Places> selected;
    Places activated;
};

bool isNear(const QwtInterval& a, const QwtInterval& b)
{
    const double least = 0.01 * b.width();
    return std::fabs(a.minValue() - b.minValue()) < least &&
           std::fabs(a.maxValue() - b.maxValue()) < least;
}

} // namespace

class StatisticsPlotTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWheelKeepsWhatIsUnderTheCursor()
    {
        FourAndOne on;
        const QPoint cursor = on.at(0.3, 0.3);
        const double before = on.panel().view().x.width();
        turnWheel(on.canvas(), cursor, 2);
        QVERIFY(std::fabs(on.panel().view().x.width() - before / 1.5625) < 0.01 * before);
        QVERIFY((on.at(0.3, 0.3) - cursor).manhattanLength() <= 4);
        turnWheel(on.canvas(), cursor, -2);
        QVERIFY(std::fabs(on.panel().view().x.width() - before) < 0.01 * before);
        turnWheel(on.canvas(), cursor, 1000); // as near as it gets
        QVERIFY(on.panel().view().x.width() > 0);
        turnWheel(on.canvas(), cursor, -1000);
        QVERIFY(on.panel().view().x.width() < 1000);
    }

    void theMiddleButtonMovesAndEscapeMovesBack()
    {
        FourAndOne on;
        const auto before = on.panel().view();
        const QPoint from = on.at(0, 0);
        drag(on.canvas(), Qt::MiddleButton, from, from + QPoint(60, 40));
        QVERIFY((on.at(0, 0) - from - QPoint(60, 40)).manhattanLength() <= 2);
        const auto moved = on.panel().view();
        drag(on.canvas(), Qt::MiddleButton, from, from + QPoint(60, 40), false);
        QVERIFY(!isNear(on.panel().view().x, moved.x));
        QTest::keyClick(on.plot.get(), Qt::Key_Escape);
        QVERIFY(isNear(on.panel().view().x, moved.x));
        on.plot->showUsual();
        QVERIFY(isNear(on.panel().view().y, before.y));
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Plus})
            QTest::keyClick(on.plot.get(), key);
        QVERIFY(on.panel().view().x.minValue() + on.panel().view().x.maxValue() < -0.05);
        QVERIFY(on.panel().view().y.minValue() + on.panel().view().y.maxValue() > 0.05);
        QVERIFY(on.panel().view().x.width() < 0.7 * before.x.width());
    }

    void aRectangleSelectsOrZooms()
    {
        FourAndOne on;
        drag(on.canvas(), Qt::LeftButton, on.at(-0.4, 0.4), on.at(0.4, 0.2));
        QCOMPARE(on.selected.back(), (Places{0, 1}));
        drag(on.canvas(), Qt::LeftButton, on.at(0.4, -0.4), on.at(-0.4, 0.4)); // the other way
        QCOMPARE(on.selected.back(), (Places{0, 1, 2, 3}));
        on.plot->setMouse(StatisticsPlot::Mouse::Zoom);
        drag(on.canvas(), Qt::LeftButton, on.at(0.2, 0.4), on.at(0.4, 0.2));
        QCOMPARE(on.selected.size(), 2U);
        QVERIFY(on.panel().view().y.contains(0.3) && !on.panel().view().y.contains(-0.3));
        QVERIFY(on.plot->note().contains("Outside of the picture: 3."_q));
    }

    void aClickPicksWhatLiesUnderIt()
    {
        FourAndOne on;
        QTest::mouseClick(&on.canvas(), Qt::LeftButton, {}, on.at(-0.3, -0.3) + QPoint(3, 2));
        QCOMPARE(on.selected.back(), Places{2});
        const QColor shown = on.plot->grab().toImage().pixelColor(
            on.canvas().mapTo(on.plot.get(), on.at(-0.3, -0.3)));
        QCOMPARE(shown, PlotLook::onScreen(on.plot->palette()).selected);
        QTest::mouseClick(&on.canvas(), Qt::LeftButton, {}, on.at(0.1, 0.1));
        QCOMPARE(on.selected.back(), Places());
        QTest::mouseDClick(&on.canvas(), Qt::LeftButton, {}, on.at(0.3, -0.3));
        QCOMPARE(on.activated, Places{3});
        QVERIFY(on.plot->tipAt(on.panel(), on.at(0.3, -0.3))
                    .startsWith("Line 1, point 4\nEast (m): 0.3"_q));
    }

    void aDoubleClickShowsAllAndBack()
    {
        FourAndOne on;
        const auto usual = on.panel().view();
        on.survey.stake("5", 80, 0);
        for (int i = 10; i < 120; ++i)
            on.survey.stake(std::to_string(i), 0.001 * i, 0);
        on.plot->setData(on.survey.data());
        QVERIFY(on.panel().view().x.width() < 3 * usual.x.width());
        QVERIFY(on.plot->note().contains("Outside of the picture: 1."_q));
        QTest::mouseDClick(&on.canvas(), Qt::LeftButton, {}, {5, 5});
        QVERIFY(on.panel().view().x.contains(80));
        QTest::mouseDClick(&on.canvas(), Qt::LeftButton, {}, {5, 5});
        QVERIFY(!on.panel().view().x.contains(80));
        // New data of the same subject leave a scale that the user has chosen.
        turnWheel(on.canvas(), on.at(0, 0), 3);
        const auto chosen = on.panel().view();
        on.plot->setData(on.survey.data());
        QVERIFY(isNear(on.panel().view().x, chosen.x));
    }

    void aMetreIsEquallyLongOnBothAxes()
    {
        FourAndOne on;
        for (const QSize& size : {QSize(900, 400), QSize(400, 800)}) {
            on.plot->resize(size);
            QApplication::processEvents();
            const PlotMaps maps = on.panel().maps();
            const double east = maps.x.transform(1) - maps.x.transform(0);
            const double north = maps.y.transform(0) - maps.y.transform(1);
            QVERIFY2(std::fabs(east - north) < 0.02 * east, qPrintable(QString::number(north)));
            QVERIFY(on.panel().view().x.contains(0.5) && on.panel().view().y.contains(-0.5));
        }
    }

    void itIsSavedDarkOnWhite_data()
    {
        QTest::addColumn<QByteArray>("begin");
        QTest::newRow("png") << QByteArray("\x89PNG");
        QTest::newRow("svg") << QByteArray("<?xml");
        QTest::newRow("PDF") << QByteArray("%PDF");
    }
    void itIsSavedDarkOnWhite()
    {
        QFETCH(QByteArray, begin);
        FourAndOne on;
        QPalette dark = on.plot->palette();
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        on.plot->setPalette(dark);
        const auto view = on.panel().view();
        const TestFolder folder;
        const QString path = folder.path("偏差 1."_q + QLatin1String(QTest::currentDataTag()));
        const Outcome outcome = on.plot->save(path);
        QVERIFY2(outcome.isDone(), qPrintable(outcome.text()));
        QVERIFY(TestFolder::read(path).startsWith(begin));
        QVERIFY(isNear(on.panel().view().x, view.x));
        QCOMPARE(on.plot->grab().toImage().pixelColor(2, 2), QColor(Qt::black));
        on.plot->copy();
        const QImage copied = QApplication::clipboard()->image();
        QVERIFY(copied.width() >= 2 * on.plot->width());
        QCOMPARE(copied.pixelColor(2, copied.height() / 2), QColor(Qt::white));
    }

    void aFileThatCannotBeWrittenIsNamed()
    {
        FourAndOne on;
        const Outcome ending = on.plot->save("/nowhere/plot.gif"_q);
        QVERIFY(ending.kind() == Outcome::Kind::Refused);
        const Outcome folder = on.plot->save("/nowhere/plot.png"_q);
        QVERIFY(folder.kind() == Outcome::Kind::Failed);
        QVERIFY(folder.text().contains("/nowhere/plot.png"_q));
    }
};

QTEST_MAIN(StatisticsPlotTest)
#include "StatisticsPlotTest.moc"
