#include "basalt_utilities/KeyList.h"
#include "lum_desktop_sdkx/LayerPicture.h"
#include "lum_desktop_sdkx/map/BoundaryLayer.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_desktop_sdkx/map/MapPicture.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_desktop_sdkx/Registration.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/raster/ScaleBar.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/MapMouse.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/Literals.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Pixels.h"

#include <QPainter>

#include <functional>
#include <limits>
#include <stdexcept>

namespace {

const QColor kPaper(10, 20, 30);

/// A layer that runs the test's function, and then fills ten by ten pixels at the map position
/// ("x", "y") with its "color".
class ProbeLayer final : public ILayerViewer
{
public:
    ProbeLayer(const char* config, IDesktopHost* /*host*/)
    {
        csa_to_dictionary(m_properties, config);
    }
    [[nodiscard]] std::string GetName() const override
    {
        return std::string(m_properties.text("layer_name"));
    }
    [[nodiscard]] QRectF GetExtent() const override
    {
        return {m_properties.number("x"), m_properties.number("y"), 1, 1};
    }
    void SetTransform(const Transform* /*transform*/) override {}
    void Paint(const PaintTarget& target, const QRectF& /*view*/, QPainter& painter) override
    {
        if (GetName() == "Faulty")
            throw std::runtime_error("no data");
        if (GetName() == "Odd")
            throw 42;
        if (onPaint)
            onPaint(target);
        const QPointF place =
            target.transform.SurveyToScreen(m_properties.number("x"), m_properties.number("y"));
        const std::string color(m_properties.text("color", "blue"));
        painter.fillRect(QRectF(place, QSizeF(0, 0)).adjusted(-5, -5, 5, 5),
                         QColor(QString::fromStdString(color)));
    }
    [[nodiscard]] IDictionary& GetProperties() override { return m_properties; }
    [[nodiscard]] bool IsVisible() const override { return m_properties.integer("visible", 1); }

    static inline std::function<void(const PaintTarget&)> onPaint; ///< on the worker

private:
    basalt::Dictionary m_properties;
};

std::atomic<int> started = 0;   ///< slow paints
std::atomic<int> overtaken = 0; ///< slow paints that were cancelled

/// Waits until the paint is cancelled.
void paintSlowly(const PaintTarget& target)
{
    ++started;
    QElapsedTimer clock;
    clock.start();
    while (!target.isCancelled() && clock.elapsed() < 20000)
        QThread::msleep(1);
    overtaken += target.isCancelled() ? 1 : 0;
}

} // namespace

class MapPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        registerMapComponents();
        QVERIFY(desktop::registration::layer<ProbeLayer>("ProbeLayer", ""));
    }

    /// An empty map of 400 x 300 pixels that shows as many metres, from (0, 0) in its lower left.
    void init()
    {
        get_system_status_dictionary().clear();
        m_host.document.name = "open"_q;
        started = overtaken = 0;
        m_map = std::make_unique<MapWindow>("", &m_host);
        QPalette palette;
        palette.setColor(QPalette::Base, kPaper);
        m_map->setPalette(palette);
        m_map->resize(400, 300);
        m_map->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_map.get()));
        m_map->repaint();
        m_map->zoomRect(0, 0, 400, 300);
        QCOMPARE(settledPicture().pixelColor(200, 150), kPaper);
    }

    void cleanup()
    {
        m_map.reset();
        ProbeLayer::onPaint = nullptr;
        get_project_coord_transform().initialise(basalt::Dictionary(), basalt::Dictionary());
    }

    void layersArePaintedAtTheirPlaceBottomToTop()
    {
        addLayer("layer_name=below,x=100,y=50");
        addLayer("layer_name=above,x=107,y=50,color=red");
        addLayer("layer_name=hidden,x=300,y=50,visible=0");
        QVERIFY(addLayer("layer_name=above,x=50,y=50") == nullptr); // the name is taken
        QVERIFY(addLayer("layer_name=b", "NoSuchLayer") == nullptr);
        const QImage picture = settledPicture();
        QCOMPARE(picture.pixelColor(97, 250), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(103, 250), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(100, 50), kPaper); // not in the north
        QCOMPARE(picture.pixelColor(300, 250), kPaper);
        QCOMPARE(picture.pixelColor(50, 250), kPaper);
    }

    void aPictureOfTheGroundGetsAHaloOverIt()
    {
        ILayerViewer* const ground = addLayer("layer_name=ground,x=100,y=50,color=red");
        addLayer("layer_name=data,x=107,y=50");
        const QPoint beside(101, 250);
        const QImage plain = settledPicture();
        QCOMPARE(plain.pixelColor(beside), QColor(Qt::red));
        const auto again = [this] {
            m_map->redraw();
            return settledPicture();
        };
        layerpicture::setShown(ground->GetProperties(), true);
        const QImage withHalo = again();
        QVERIFY(withHalo.pixelColor(beside).red() < 100);        // almost the paper
        QCOMPARE(withHalo.pixelColor(98, 250), QColor(Qt::red)); // the picture itself has none
        QCOMPARE(withHalo.pixelColor(102, 250), QColor(Qt::blue));
        layerpicture::setShown(ground->GetProperties(), false);
        QCOMPARE(again(), plain);
    }

    void lastPictureMovesWithTheViewAtOnce()
    {
        addLayer("layer_name=a,x=100,y=50");
        settledPicture();
        ProbeLayer::onPaint = paintSlowly;

        m_map->pan(0, 0, 200, -100);
        QImage picture = shown();
        QCOMPARE(picture.pixelColor(300, 150), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(294, 150), kPaper);
        QCOMPARE(picture.pixelColor(305, 150), kPaper);
        QCOMPARE(picture.pixelColor(399, 299), kPaper); // where the picture has moved away

        m_map->zoomAbout(300, 150, 4);
        picture = shown();
        QCOMPARE(picture.pixelColor(282, 168), QColor(Qt::blue)); // four times as large
        QCOMPARE(picture.pixelColor(278, 150), kPaper);
        m_map.reset();
    }

    void faultyLayerIsLoggedAndTheRestPainted()
    {
        const LogCapture log;
        addLayer("layer_name=Faulty");
        addLayer("layer_name=Odd");
        addLayer("layer_name=sound,x=100,y=50");
        QCOMPARE(settledPicture().pixelColor(100, 250), QColor(Qt::blue));
        QVERIFY(log.holds("\"Faulty\" could not be painted: no data"));
        QVERIFY(log.holds("\"Odd\" could not be painted: unknown fault"));
        m_map->pan(0, 0, 100, 0); // the worker is still running
        QCOMPARE(settledPicture().pixelColor(200, 250), QColor(Qt::blue));
    }

    void slowPaintIsOvertaken()
    {
        ProbeLayer::onPaint = [](const PaintTarget& target) {
            if (target.transform.GetScale() == 1)
                paintSlowly(target);
        };
        addLayer("layer_name=a,x=200,y=150");
        QTRY_COMPARE(started.load(), 1);
        QSignalSpy pictures(m_map.get(), &MapWindow::pictureChanged);
        m_map->zoomAbout(200, 150, 2);
        QTRY_COMPARE(overtaken.load(), 1);
        QTRY_COMPARE(shown().pixelColor(200, 150), QColor(Qt::blue));
        QCOMPARE(pictures.count(), 1); // the cancelled picture was not shown
    }

    void aRestIsPaintedLaterWithTwiceTheTime()
    {
        std::vector<double> timesMs; // read only when the map is up to date
        ProbeLayer::onPaint = [&](const PaintTarget& target) {
            const auto left = target.deadline - std::chrono::steady_clock::now();
            timesMs.push_back(std::chrono::duration<double, std::milli>(left).count());
            if (timesMs.size() < 4)
                target.leaveRest();
        };
        QSignalSpy pictures(m_map.get(), &MapWindow::pictureChanged);
        addLayer("layer_name=a,x=200,y=150");
        QCOMPARE(settledPicture().pixelColor(200, 150), QColor(Qt::blue));
        QCOMPARE(pictures.count(), 4); // each is shown
        QCOMPARE(timesMs.size(), std::size_t(4));
        for (std::size_t i = 1; i < timesMs.size(); ++i)
            QVERIFY2(std::abs(timesMs[i] / timesMs[i - 1] - 2) < 0.5, "not twice the time");
    }

    void aNewerViewEndsTheRest()
    {
        std::atomic<int> painted = 0;
        ProbeLayer::onPaint = [&](const PaintTarget& target) {
            ++painted;
            QThread::msleep(1);
            if (target.transform.GetScale() == 1)
                target.leaveRest(); // for ever
        };
        addLayer("layer_name=a,x=200,y=150");
        QTRY_VERIFY(painted > 3);
        QVERIFY(!m_map->isUpToDate());
        m_map->zoomAbout(200, 150, 2);
        QCOMPARE(settledPicture().pixelColor(200, 150), QColor(Qt::blue));
        const int atEnd = painted;
        QTest::qWait(20);
        QCOMPARE(painted.load(), atEnd);
    }

    void longDragStillGetsPictures()
    {
        addLayer("layer_name=a,x=200,y=150");
        settledPicture();
        std::atomic<int> finished = 0;
        ProbeLayer::onPaint = [&](const PaintTarget& target) {
            for (int i = 0; i < 60 && !target.isCancelled(); ++i)
                QThread::msleep(1);
            finished += target.isCancelled() ? 0 : 1;
        };
        QSignalSpy pictures(m_map.get(), &MapWindow::pictureChanged);
        QElapsedTimer clock;
        clock.start();
        while (pictures.count() < 2 && clock.elapsed() < 20000) {
            m_map->pan(0, 0, 1, 0); // the view moves faster than a paint takes
            QTest::qWait(5);
            m_map->pan(0, 0, -1, 0);
        }
        QVERIFY(pictures.count() >= 2);
        QTRY_VERIFY(finished.load() >= 2);
    }

    void endDuringASlowPaintWaitsForIt()
    {
        ProbeLayer::onPaint = [](const PaintTarget& target) {
            paintSlowly(target);
            QThread::msleep(20);
        };
        addLayer("layer_name=a");
        QTRY_COMPARE(started.load(), 1);
        m_map.reset();
        QCOMPARE(overtaken.load(), 1);
    }

    void zoomAllShowsTheVisibleLayers()
    {
        for (const char* layer : {"layer_name=a,x=1000,y=2000", "layer_name=b,x=3000,y=2500",
                                  "layer_name=c,x=99999,y=2500,visible=0"})
            addLayer(layer);
        addLayer("layer_name=frame", "BoundaryLayer");
        m_map->zoomAll();
        QCOMPARE(viewOf(m_map->transform()), "2000.5, 2250.5 at 5.55833"_q);
    }

    void overlayTakesAnyShape()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        IOverlay& overlay = m_map->overlay(0);
        overlay.setColor(Qt::green);
        overlay.setLineWidth(3);
        overlay.setVertices({{{20, 280}, {nan, 0}, {40, 280}}});
        overlay.setLine({{{-1e15, 200}, {1e15, 200}, {nan, nan}, {0, 0}}});
        overlay.setRectangle(QRectF(QPointF(300, 250), QPointF(200, 150))); // to the upper left
        m_map->refreshOverlay();
        QImage picture = shown();
        QCOMPARE(picture.pixelColor(40, 20), QColor(Qt::green));
        QCOMPARE(picture.pixelColor(10, 100), QColor(Qt::green));
        QCOMPARE(picture.pixelColor(200, 200), QColor(Qt::green));
        QCOMPARE(picture.pixelColor(300, 200), QColor(Qt::green));
        QVERIFY(picture.pixelColor(250, 200) != QColor(Qt::green));
        QCOMPARE(picture.pixelColor(310, 200), kPaper);

        overlay.setLineStyle(Qt::DashLine); // must not walk along dashes out of sight
        m_map->zoomAbout(200, 100, 1e6);
        overlay.setRectangle({nan, 0, 10, nan});
        m_map->refreshOverlay();
        picture = shown();
        QCOMPARE(picture.pixelColor(399, 299), kPaper);
    }

    void overlayLinesKeepTheirColoursAndPointAhead()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        IOverlay& overlay = m_map->overlay(1);
        const auto add = [&](const QVector<QPointF>& line, Qt::GlobalColor color, bool hasArrow) {
            overlay.addLine({QPolygonF(line), color, 2, Qt::SolidLine, hasArrow});
        };
        add({{50, 200}, {150, 200}}, Qt::cyan, true);
        add({{100, 50}, {100, 250}}, Qt::blue, false);
        add({{300, 100}, {300, 100}}, Qt::red, true); // has no direction
        add({{300, 50}, {nan, nan}}, Qt::red, true);
        add({{300, 20}}, Qt::red, true);
        m_map->refreshOverlay();
        const QImage picture = shown();
        QCOMPARE(picture.pixelColor(70, 100), QColor(Qt::cyan));
        QCOMPARE(picture.pixelColor(70, 98), QColor(Qt::white)); // the edge
        QCOMPARE(picture.pixelColor(100, 100), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(138, 102), QColor(Qt::cyan)); // the head ends at 150
        QCOMPARE(picture.pixelColor(148, 105), kPaper);
        QCOMPARE(picture.pixelColor(53, 104), kPaper); // none at the beginning
        QCOMPARE(picture.pixelColor(100, 248), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(104, 60), kPaper);
        QCOMPARE(picture.pixelColor(300, 195), kPaper);

        overlay.clear();
        m_map->refreshOverlay();
        QCOMPARE(shown().pixelColor(70, 100), kPaper);
    }

    void boundaryIsDrawnAtItsPlaceAtAnyZoom()
    {
        BoundaryLayer layer("", &m_host);
        MapPaintJob job;
        job.layers = {&layer};
        job.target.status.set(status::kDrawBoundaryRect, "1");
        job.target.mapExtent = QRectF(0, 0, 1e12, 1e12);
        job.target.transform.setSize({100, 80});
        QImage blank(100, 80, QImage::Format_RGB32);
        blank.fill(Qt::white);

        job.target.transform.setView({20, 20}, 1); // the corner is at (30, 60)
        const QImage corner = paintPicture(job);
        QCOMPARE(corner.pixelColor(31, 60), QColor(213, 94, 0));
        QCOMPARE(corner.pixelColor(25, 50), QColor(Qt::white));
        job.target.transform.setView({1e12, 5e11}, Transform::kMinScale);
        QVERIFY(paintPicture(job) != blank); // a part of an edge 1e18 pixels long
        job.target.transform.setView({5e11, 5e11}, 1);
        QCOMPARE(paintPicture(job), blank);
        job.target.mapExtent = QRectF();
        job.target.transform.setView({0, 0}, 1);
        QCOMPARE(paintPicture(job), blank);
    }

    void everyDevicePixelIsDrawnAtAScaleThatIsNoWholeNumber()
    {
        Transform view;
        view.setSize({33, 33}); // 41.25 device pixels
        view.setView({0, 0}, 1);
        QImage painted(41, 41, QImage::Format_ARGB32_Premultiplied);
        painted.setDevicePixelRatio(1.25);
        painted.fill(Qt::blue);
        MapPicture picture;
        for (const bool isPainted : {false, true}) {
            if (isPainted)
                picture.set(painted, view);
            QImage window(42, 42, QImage::Format_ARGB32_Premultiplied);
            window.setDevicePixelRatio(1.25);
            window.fill(Qt::red);
            QPainter painter(&window);
            picture.draw(painter, view, kPaper);
            painter.end();
            QCOMPARE(window.pixelColor(20, 20), isPainted ? QColor(Qt::blue) : QColor(kPaper));
            QCOMPARE(window.pixelColor(20, 41), QColor(kPaper));
            QCOMPARE(window.pixelColor(41, 20), QColor(kPaper));
        }
    }

    void sourcesAreNamedBesideTheScaleBarOrAboveIt()
    {
        const auto darkIn = [](const QImage& picture, const QRect& area) {
            return countPixels(picture, area,
                               [&](const QPoint& at) { return qGray(picture.pixel(at)) < 100; });
        };
        QPalette white;
        white.setColor(QPalette::Base, Qt::white);
        m_map->setPalette(white);
        ILayerViewer* const layer = addLayer("layer_name=a,x=-99,y=-99");
        for (const char* text :
             {"© A", "© everybody who has ever drawn a line or a name of this map"}) {
            for (const int width : {700, 400, 260, 205}) {
                m_map->resize(width, 300);
                layer->GetProperties().set("attribution", "");
                m_map->redraw();
                settledPicture();
                const QImage without = shown();
                layer->GetProperties().set("attribution", text);
                const QImage with = shown();
                const QRect left(0, 264, std::min(width / 3, 160) + 30,
                                 36); // of the bar and its length
                QCOMPARE(with.copy(left & with.rect()), without.copy(left & with.rect()));
                const QRect right(width / 2, 150, width / 2 - 12, 138);
                QVERIFY2(darkIn(with, right) > darkIn(without, right) + 20, text);
            }
        }
        const QImage named = shown();
        layer->GetProperties().set("visible", "0");
        QVERIFY(shown() != named);
    }

    void scaleBarHasARoundLengthAndIsAsLongAsItSays()
    {
        for (const auto& [limit, length] :
             {std::pair(1.99, 1.), {4.9, 2.}, {5., 5.}, {0.02, 0.02}, {0.0199, 0.01}})
            QCOMPARE(lum::roundLength(limit), length);
        QCOMPARE(lum::lengthText(500, lum::kMetre), "500 m"_q);
        QCOMPARE(lum::lengthText(2e7, lum::kMetre), "20000 km"_q);
        QCOMPARE(lum::lengthText(1e8, lum::kFoot), "100000000 ft"_q);
        QCOMPARE(lum::lengthText(5e-5, lum::kMetre), "0.00005 m"_q);
        QCOMPARE(lum::lengthText(2000, lum::kUsSurveyFoot), "2000 ftUS"_q);

        const auto blackPixels = [this] { // in a row through the bar, left of its text
            return countPixels(shown(), {0, 276, 70, 1}, Qt::black);
        };
        m_host.document.name.clear();
        QCOMPARE(blackPixels(), 0);
        m_host.document.name = "open"_q;
        QCOMPARE(blackPixels(), 51); // half of 100 m
        get_system_ini_parameter().dictionary().set(settings::kCoordUnit, "1");
        m_host.events.publish(events::kUpdateSystemStatus, nullptr, 0);
        QCOMPARE(blackPixels(), 31); // half of 200 ft

        basalt::Dictionary inFeet;
        QCOMPARE(fillFromEpsg("32037", inFeet), std::string());
        get_project_coord_transform().initialise(inFeet, inFeet);
        QCOMPARE(blackPixels(), 51); // half of 100 ftUS
        get_system_ini_parameter().dictionary().set(settings::kCoordUnit, "0");
        QCOMPARE(blackPixels(), 34);      // half of 20 m
        m_map->zoomAbout(200, 150, 1e-6); // a bar of 150,000 km is too long
        QCOMPARE(blackPixels(), 0);
        get_system_ini_parameter().dictionary().clear();
    }

private:
    ILayerViewer* addLayer(const char* properties, const char* className = "ProbeLayer")
    {
        basalt::Dictionary dictionary;
        csa_to_dictionary(dictionary, properties);
        return m_map->addLayer(QString::fromLatin1(className), dictionary);
    }

    /// What is shown when all paints are done.
    QImage settledPicture()
    {
        if (!QTest::qWaitFor([this] { return m_map->isUpToDate(); }, 20000))
            return {};
        return shown();
    }

    [[nodiscard]] QImage shown()
    {
        QImage picture(m_map->size(), QImage::Format_RGB32);
        picture.fill(Qt::magenta); // shows where the map paints nothing
        m_map->render(&picture, {}, {}, {});
        return picture;
    }

    TestHost m_host;
    std::unique_ptr<MapWindow> m_map;
};

QTEST_MAIN(MapPaintTest)
#include "MapPaintTest.moc"
