#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/raster/UserBaseMaps.h"
#include "map/ui/BaseMapCommands.h"
#include "map/ui/DlgBaseMaps.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "tests/map/ui/TestMap.h"
#include "tests/support/HttpTestServer.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Widgets.h"

#include <set>

namespace {

using Behaviour = HttpTestServer::Behaviour;

lum::BaseMapList::Entry entryOf(const QString& name, lum::BaseMapKind kind, const QString& address)
{
    lum::BaseMapList::Entry entry;
    entry.map.name = name;
    entry.map.kind = kind;
    entry.map.address = address;
    entry.map.attribution = "© "_q + name;
    return entry;
}

/// A map of 400 x 300 m in UTM zone 50 with a layer of base maps, and the commands of the menu.
class Ground : public TestMap
{
public:
    Ground()
    {
        host.document.name = "open"_q;
        setStatus(status::kProjectOpen, "1");
        basalt::Dictionary layer;
        layer.set("layer_name", "OnlineMap");
        window.addLayer("RasterLayerImp"_q, layer);
        window.zoomRect(500000, 4400000, 500400, 4400300);
    }
    ~Ground()
    {
        get_project_coord_transform().initialise(basalt::Dictionary(), basalt::Dictionary());
    }

    void takeSystem()
    {
        basalt::Dictionary system;
        QCOMPARE(fillFromEpsg("32650", system), std::string());
        QCOMPARE(get_project_coord_transform().initialise(system, system), 0);
    }
    [[nodiscard]] QColor center() { return picture().pixelColor(200, 150); }

    LoadOnlineMapCommand online{"", &host};
    LoadRoadMapCommand road{"", &host};
    LoadSatMapCommand satellite{"", &host};
    LoadTerrainMapCommand terrain{"", &host};
};

} // namespace

/// Layer and commands of the base map, as the frame runs them, with a server on this machine.
class BaseMapLayerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestMap::registerComponents(); }
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        qputenv("XDG_CONFIG_HOME", m_folder->path().toUtf8());
        qputenv("XDG_CACHE_HOME", m_folder->path().toUtf8());
        get_system_ini_parameter().dictionary().clear();
        m_server = std::make_unique<HttpTestServer>();
        lum::rereadUserBaseMaps();
        using Kind = lum::BaseMapKind;
        lum::setUserBaseMaps(
            {entryOf("Roads"_q, Kind::Road, m_server->address("/{z}/{x}/{y}.png")),
             entryOf("Photos"_q, Kind::Satellite, m_server->address("/{z}/{x}/{y}.jpg"))});
    }
    void cleanup()
    {
        m_server.reset();
        m_folder.reset();
    }

    void nothingIsAskedBeforeItIsSwitchedOn()
    {
        Ground map;
        QVERIFY(!map.online.isEnabled()); // no coordinate system
        map.takeSystem();
        map.publish(events::kUpdateSystemStatus);
        QVERIFY(map.online.isEnabled());
        QCOMPARE(map.online.caption(), "show online map"_q);
        for (const ICommandExecuterx* kind :
             std::initializer_list<ICommandExecuterx*>{&map.road, &map.satellite, &map.terrain})
            QVERIFY(!kind->isEnabled() && !kind->isChecked());
        map.setStatus(status::kProjectOpen, "0");
        QVERIFY(!map.online.isEnabled());
        map.window.redraw();
        QCOMPARE(map.center(), QColor(Qt::white));
        QVERIFY(m_server->requests().empty());
    }

    void itIsShownWithItsSourceAndClosedAgain()
    {
        Ground map;
        map.takeSystem();
        map.online.execute();
        QVERIFY(map.host.told.contains("Roads"_q) && map.host.told.contains("127.0.0.1"_q));
        QTRY_VERIFY(map.center() != QColor(Qt::white));
        std::set<QRgb> colours;
        for (const std::string& path : m_server->paths()) {
            int zoom = 0;
            int column = 0;
            int row = 0;
            QCOMPARE(std::sscanf(path.c_str(), "/%d/%d/%d.png", &zoom, &column, &row), 3);
            colours.insert(HttpTestServer::colourOf(zoom, column, row).rgb());
        }
        QVERIFY(colours.count(map.center().rgb()) == 1);
        QCOMPARE(QByteArray(m_server->requests().front().agent.c_str()).left(9), "Skyquill/");
        QVERIFY(map.road.isChecked() && map.satellite.isEnabled() && !map.satellite.isChecked());
        QCOMPARE(map.online.caption(), "close online map"_q);
        QCOMPARE(map.window.layers().find("OnlineMap"_q)->GetProperties().text("attribution"),
                 std::string_view("© Roads"));

        map.online.execute();
        QCOMPARE(map.center(), QColor(Qt::white));
        const std::size_t asked = m_server->requests().size();
        map.window.zoomAbout(0, 0, 3);
        QCOMPARE(map.center(), QColor(Qt::white));
        QTest::qWait(50);
        QCOMPARE(m_server->requests().size(), asked);
        QVERIFY(
            map.window.layers().find("OnlineMap"_q)->GetProperties().text("attribution").empty());
    }

    void anotherKindReplacesItAndIsShownNextTime()
    {
        {
            Ground map;
            map.takeSystem();
            map.online.execute();
            map.terrain.execute(); // the list has none
            QVERIFY(map.host.told.contains("Manage"_q));
            QVERIFY(map.road.isChecked() && !map.terrain.isChecked());
            map.satellite.execute();
            QVERIFY(map.satellite.isChecked() && !map.road.isChecked());
            QTRY_VERIFY(!m_server->paths().empty() &&
                        m_server->paths().back().find(".jpg") != std::string::npos);
        }
        Ground map; // the next start of the program
        map.takeSystem();
        QVERIFY(!map.online.isChecked());
        map.online.execute();
        QVERIFY(map.satellite.isChecked());
    }

    void anotherProjectBeginsWithoutIt()
    {
        Ground map;
        map.takeSystem();
        map.online.execute();
        QTRY_VERIFY(map.center() != QColor(Qt::white));
        ProjectState::closed(map.host);
        QCOMPARE(map.center(), QColor(Qt::white));
        map.host.document.name = "another"_q;
        map.setStatus(status::kProjectOpen, "1");
        map.publish(events::kUpdateSystemStatus);
        QVERIFY(map.online.isEnabled() && !map.online.isChecked());
        QCOMPARE(map.center(), QColor(Qt::white));
    }

    void troubleIsToldOnceAndItsEndToo()
    {
        m_server->behave(Behaviour::ServerError);
        Ground map;
        map.takeSystem();
        map.online.execute();
        const QString first = map.host.told;
        QTRY_VERIFY(map.host.told != first);
        const QString trouble = map.host.told;
        QVERIFY2(trouble.contains("Roads"_q), qPrintable(trouble));
        map.host.told = "something else"_q;
        map.window.zoomAbout(200, 150, 0.5); // more tiles, the same trouble
        map.picture();
        QTest::qWait(300);
        QCOMPARE(map.host.told, "something else"_q);

        m_server->behave(Behaviour::Fine);
        QTRY_VERIFY_WITH_TIMEOUT(map.host.told == "The base map \"Roads\" is complete again."_q,
                                 20000); // it waits for some seconds
        QTRY_VERIFY(map.center() != QColor(Qt::white));
    }

    void aServiceThatHangsHoldsUpNothing()
    {
        m_server->behave(Behaviour::Hangs);
        QElapsedTimer clock;
        {
            Ground map;
            map.takeSystem();
            map.online.execute();
            QTRY_VERIFY(!m_server->requests().empty());
            clock.start();
            map.window.zoomAbout(200, 150, 0.5);
            QVERIFY(!map.picture().isNull());
            map.online.execute();
            map.online.execute();
        }
        QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
    }

    void aFileIsABaseMapToo()
    {
        const QString path = m_folder->path("底图 base.png");
        QVERIFY(writeBlueRaster(path));
        lum::setUserBaseMaps({entryOf("File"_q, lum::BaseMapKind::Satellite, path)});
        Ground map;
        map.takeSystem();
        map.online.execute();
        QTRY_COMPARE(map.center(), QColor(Qt::blue));
        QVERIFY(map.satellite.isChecked());
        QVERIFY(m_server->requests().empty());

        map.online.execute();
        QVERIFY(QFile::remove(path));
        map.online.execute();
        QVERIFY2(map.host.told.contains("底图 base.png"_q), qPrintable(map.host.told));
        QVERIFY(!map.online.isChecked());
    }

    void theDialogShowsOneAndClosesWhatIsGone()
    {
        Ground map;
        map.takeSystem();
        map.online.execute();
        DlgBaseMaps dialog(map.host);
        dialog.show();
        auto& list = *dialog.findChild<QTreeWidget*>();
        QTest::keyClick(&list, Qt::Key_Down);
        press(dialog, "Show on Map");
        QVERIFY(!dialog.isVisible());
        QVERIFY(map.satellite.isChecked());

        DlgBaseMaps again(map.host);
        again.show();
        QTest::keyClick(again.findChild<QTreeWidget*>(), Qt::Key_Space); // hides what is shown
        press(again, "OK");
        QVERIFY(!again.isVisible());
        QVERIFY(!map.online.isChecked());
        QCOMPARE(map.center(), QColor(Qt::white));
    }

    void aLayerWhosePictureComesBitByBitDoesNotStarveIt()
    {
        Ground map;
        map.picture();
        QSignalSpy pictures(&map.window, &MapWindow::pictureChanged);
        QElapsedTimer clock;
        clock.start();
        while (pictures.count() < 3 && clock.elapsed() < 20000) {
            map.window.redrawSoon(); // much faster than a paint takes
            QCoreApplication::processEvents();
        }
        QVERIFY(pictures.count() >= 3);
        map.picture();
        QVERIFY(map.window.isUpToDate());
    }

private:
    /// An image that is blue all over, 1000 m around the place of the map, with a world file.
    bool writeBlueRaster(const QString& path) const
    {
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::blue);
        const QString world = QString(path).replace(".png"_q, ".pgw"_q);
        QFile file(world);
        return image.save(path) && file.open(QIODevice::WriteOnly) &&
               file.write("20\n0\n0\n-20\n499010\n4400990\n") > 0;
    }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<HttpTestServer> m_server;
};

QTEST_MAIN(BaseMapLayerTest)
#include "BaseMapLayerTest.moc"
