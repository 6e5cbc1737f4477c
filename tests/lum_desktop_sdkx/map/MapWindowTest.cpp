#include "lum_desktop_sdkx/map/MapWindow.h"

#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_desktop_sdkx/MouseKeyEventParameters.h"
#include "lum_desktop_sdkx/ReactorBase.h"
#include "lum_desktop_sdkx/Registration.h"
#include "protocol/Events.h"
#include "tests/lum_desktop_sdkx/MapMouse.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"

#include <cmath>
#include <functional>

namespace {

/// A tool that notes the presses, handles every move, and runs the test's function on a press.
class ProbeTool final : public ReactorBase
{
public:
    ProbeTool(const char* /*config*/, IMapWindow* map) : ReactorBase(map) { ++alive; }
    ~ProbeTool() override { --alive; }
    ProbeTool(const ProbeTool&) = delete;
    ProbeTool& operator=(const ProbeTool&) = delete;

    int lButtonDown(const MouseKeyEventParameters& event) override
    {
        presses.append(event.position.toPoint());
        if (const auto act = onPress) // a copy: it may set the next one
            act(map());
        m_pressesOfThis++; // the sanitizer tells when the press has deleted this reactor
        return m_pressesOfThis;
    }
    int mouseMove(const MouseKeyEventParameters& /*event*/) override { return 1; }
    int keyPress(const MouseKeyEventParameters& event) override
    {
        return event.key == Qt::Key_Home ? 1 : 0;
    }

    static inline QVector<QPoint> presses;
    static inline std::function<void(IMapWindow&)> onPress;
    static inline int alive = 0;

private:
    int m_pressesOfThis = 0;
};

} // namespace

class MapWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        registerMapComponents();
        registerMapComponents();
        QVERIFY(desktop::registration::reactor<ProbeTool>("ProbeTool", ""));
    }

    /// A map of 800 x 600 pixels that shows as many metres, from (0, 0) in its lower left corner.
    void init()
    {
        ProbeTool::presses.clear();
        ProbeTool::onPress = nullptr;
        m_map = std::make_unique<MapWindow>("reactors=ReactorDefault", &m_host);
        m_map->resize(800, 600);
        m_map->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_map.get()));
        m_map->repaint();
        m_map->zoomRect(0, 600, 800, 0);
        QCOMPARE(view(), "400, 300 at 1"_q);
    }

    void cleanup()
    {
        m_map.reset();
        QCOMPARE(ProbeTool::alive, 0);
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void wheelZoomsAboutTheCursor()
    {
        for (const int angle : {30, -240})
            wheel({200, 100}, angle); // half of the way from the centre to the corner
        const double expected = std::pow(1.25, 2 - 0.25);
        QCOMPARE(scale(), expected);
        QCOMPARE(center(), QPointF(200 + 200 * expected, 500 - 200 * expected));
    }

    void middleDragPansExactlyUnderAnyTool()
    {
        const EventLog log(m_host.events, events::kXyChanged);
        drag(Qt::MiddleButton, {100, 100}, {131, 60});
        for (const std::string& place : log.payloads())
            QCOMPARE(place, std::string("N=500 E=100")); // it stays under the cursor
        QCOMPARE(log.events.size(), 2U);
        QCOMPARE(center(), QPointF(400 - 31, 300 - 40));
        install("ProbeTool");
        m_map->setMapCursor(Qt::CrossCursor);
        drag(Qt::MiddleButton, {131, 60}, {100, 100});
        QCOMPARE(center(), QPointF(400, 300));

        QTest::mousePress(m_map.get(), Qt::MiddleButton, {}, {5, 5});
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::ClosedHandCursor);
        QTest::mouseRelease(m_map.get(), Qt::MiddleButton, {}, {5, 5});
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
        QCOMPARE(m_map->cursor().shape(), Qt::CrossCursor);

        // Without the event of the release, the next move without the button ends the pan.
        QTest::mousePress(m_map.get(), Qt::MiddleButton, {}, {5, 5});
        install("ReactorDefault");
        move({50, 50});
        QCOMPARE(center(), QPointF(400, 300));
    }

    void keysMoveTheView()
    {
        const struct
        {
            Qt::Key key;
            Qt::KeyboardModifier modifier;
            const char* view;
        } cases[] = {{Qt::Key_Left, Qt::NoModifier, "320, 300 at 1"},
                     {Qt::Key_Right, Qt::ShiftModifier, "800, 300 at 1"},
                     {Qt::Key_Up, Qt::NoModifier, "400, 360 at 1"},
                     {Qt::Key_Down, Qt::ShiftModifier, "400, 0 at 1"},
                     {Qt::Key_Plus, Qt::NoModifier, "400, 300 at 0.666667"},
                     {Qt::Key_Minus, Qt::NoModifier, "400, 300 at 1.5"},
                     {Qt::Key_A, Qt::NoModifier, "400, 300 at 1"}};
        for (const auto& [key, modifier, expected] : cases) {
            m_map->zoomRect(0, 600, 800, 0);
            QTest::keyClick(m_map.get(), key, modifier);
            QCOMPARE(view(), QLatin1String(expected));
        }
    }

    void toolComesFirstAndStandingReactorSecond()
    {
        install("ProbeTool");
        m_map->setExtent(0, 0, 80000, 60000);
        m_map->zoomRect(0, 0, 800, 600);
        QTest::keyClick(m_map.get(), Qt::Key_Home); // the tool handles it
        QCOMPARE(scale(), 1.0);
        QTest::keyClick(m_map.get(), Qt::Key_Left); // the tool leaves it to ReactorDefault
        QCOMPARE(center(), QPointF(320, 300));
        QTest::mouseClick(m_map.get(), Qt::LeftButton, {}, {11, 12});
        QCOMPARE(ProbeTool::presses, QVector<QPoint>{QPoint(11, 12)});

        QVERIFY(m_map->installReactor("ReactorDefault"_q));
        QCOMPARE(ProbeTool::alive, 0);
        QTest::keyClick(m_map.get(), Qt::Key_Home);
        QVERIFY(scale() > 100);
    }

    void toolMayReplaceItselfWhileItRuns()
    {
        install("ProbeTool");
        ProbeTool::onPress = [](IMapWindow& map) {
            map.installReactor("ReactorDefault"_q);
            map.installReactor("ProbeTool"_q);
            QCOMPARE(ProbeTool::alive, 2);
        };
        QTest::mousePress(m_map.get(), Qt::LeftButton, {}, {1, 1});
        QCOMPARE(ProbeTool::alive, 1);

        ProbeTool::onPress = [this](IMapWindow& map) { // an event inside an event
            ProbeTool::onPress = [](IMapWindow& inner) {
                inner.installReactor("ReactorDefault"_q);
            };
            QTest::mousePress(m_map.get(), Qt::LeftButton, {}, {2, 2});
            QCOMPARE(ProbeTool::alive, 1);
            map.setMapCursor(Qt::CrossCursor);
        };
        QTest::mousePress(m_map.get(), Qt::LeftButton, {}, {3, 3});
        QCOMPARE(ProbeTool::alive, 0);
    }

    void doubleClickThatNobodyWantsIsAPress()
    {
        install("ProbeTool");
        QTest::mouseDClick(m_map.get(), Qt::LeftButton, {}, {20, 30});
        QCOMPARE(ProbeTool::presses, QVector<QPoint>{QPoint(20, 30)});
        QTest::mouseDClick(m_map.get(), Qt::MiddleButton, {}, {20, 30});
        move({30, 30}, Qt::MiddleButton);
        QCOMPARE(center(), QPointF(390, 300));
    }

    void firstExtentIsShownAndLaterOnesWhenOutOfSight()
    {
        m_map->zoomAll(); // without data
        QCOMPARE(view(), "0, 0 at 1"_q);
        m_map->setExtent(1000, 1540, 1720, 1000); // not normalised; 5 % stay free on each side
        QCOMPARE(m_map->extent(), QRectF(1000, 1000, 720, 540));
        QCOMPARE(view(), "1360, 1270 at 1"_q);

        m_map->setExtent(1760, 1000, 99999, 99999); // touches the right edge of what is seen
        QCOMPARE(center(), QPointF(1360, 1270));
        m_map->setExtent(1761, 1000, 2481, 1000);
        QCOMPARE(view(), "2121, 1000 at 1"_q);
    }

    void extentFromBeforeTheFirstSizeFitsTheRealOne()
    {
        MapWindow map("", &m_host);
        map.setExtent(0, 0, 900, 450);
        map.setExtent(100, 0, 1000, 450); // the later one counts
        map.resize(1000, 500);
        map.show();
        QVERIFY(QTest::qWaitForWindowExposed(&map));
        QCOMPARE(viewOf(map.transform()), "550, 225 at 1"_q);
        map.resize(600, 400);
        QCOMPARE(viewOf(map.transform()), "550, 225 at 1"_q);
        QCOMPARE(map.transform().size(), QSize(600, 400));
    }

private:
    void install(const char* tool) { QVERIFY(m_map->installReactor(QString::fromUtf8(tool))); }
    void wheel(const QPoint& place, int angle)
    {
        QWheelEvent event(place, m_map->mapToGlobal(place), {}, {0, angle}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_map.get(), &event);
    }

    void move(const QPoint& to, Qt::MouseButtons buttons = Qt::NoButton)
    {
        moveMouse(*m_map, to, buttons);
    }
    void drag(Qt::MouseButton button, const QPoint& from, const QPoint& to)
    {
        dragMouse(*m_map, button, from, to);
    }
    [[nodiscard]] QString view() const { return viewOf(m_map->transform()); }
    [[nodiscard]] QPointF center() const { return m_map->transform().center(); }
    [[nodiscard]] double scale() const { return m_map->transform().GetScale(); }

    TestHost m_host;
    std::unique_ptr<MapWindow> m_map;
};

QTEST_MAIN(MapWindowTest)
#include "MapWindowTest.moc"
