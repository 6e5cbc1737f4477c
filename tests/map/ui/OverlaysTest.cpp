#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/LayerPicture.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_desktop_sdkx/Registration.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "map/ui/DlgOverviews.h"
#include "map/ui/SetTifPathCommand.h"
#include "map/ui/TifLayer.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Boxes.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/MadeRaster.h"
#include "tests/support/TestFolder.h"

#include <QtTest>
#include <QtWidgets>

/// A map of 200 x 200 pixels, a metre each, of a project in UTM zone 50, with the layer "TifLayer".
class OverlaysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        registerMapComponents();
        desktop::registration::layer<TifLayer>("TifLayer", "");
    }

    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_project = std::make_unique<OpenProject>();
        basalt::Dictionary system;
        QCOMPARE(fillFromEpsg("32650", system), std::string());
        m_project->manager->setCoordSystem(system);
        m_map = std::make_unique<MapWindow>(nullptr, &m_project->host);
        m_map->resize(200, 200);
        m_project->host.windowRegistry.windows.insert("DataMap"_q, m_map.get());
        m_map->addLayer("TifLayer"_q, basalt::Dictionary());
        m_map->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_map.get()));
        m_map->zoomRect(500000, 4400000, 500200, 4400200);
        openProjectIn(m_folder->path());
        m_boxes = std::make_unique<Boxes>();
        m_files = std::make_unique<FileDialog::Responder>([this](const auto&) { return m_chosen; });
    }

    void cleanup()
    {
        m_files.reset();
        m_boxes.reset();
        m_map.reset();
        m_project.reset();
        m_folder.reset();
    }

    void showsTheImagesInTheirOrder()
    {
        QCOMPARE(middle(), QColor(Qt::white));
        choose({makeTiff("red.tif", Qt::red), makeTiff("绿 1.tif", Qt::green)});
        QCOMPARE(list(), "red.tif 绿 1.tif"_q);
        QCOMPARE(m_project->host.told, "Overlay images added: 2."_q);
        QCOMPARE(m_project->host.windowRegistry.activated, QStringList{"LayerWindow"_q});
        QCOMPARE(middle(), QColor(Qt::red));
        QVERIFY(layerpicture::isShown(layer().GetProperties())); // the data get a halo

        layer().moveItem(0, 1);
        m_map->redraw();
        QCOMPARE(middle(), QColor(Qt::green));
        layer().setItemOpacity(0, 0.5);
        m_map->redraw();
        const QColor mixed = middle();
        QVERIFY(std::abs(mixed.red() - 127) < 3 && std::abs(mixed.green() - 127) < 3);
        layer().showItem(0, false);
        m_map->redraw();
        QCOMPARE(middle(), QColor(Qt::red));
        layer().removeItem(1);
        m_map->redraw();
        QCOMPARE(middle(), QColor(Qt::white));
        QVERIFY(!layerpicture::isShown(layer().GetProperties())); // one is left, but hidden

        choose(
            {path("red.tif"), path("绿 1.tif"), path("red.tif")}); // one of them is there, hidden
        QCOMPARE(list(), "red.tif 绿 1.tif"_q);
        QCOMPARE(layer().item(1).isVisible, true);
        QCOMPARE(layer().item(1).opacity, 0.5);
        QCOMPARE(layer().GetExtent(), QRectF(500000, 4400000, 200, 200));
    }

    void comesAndGoesWithTheProject()
    {
        EventLog events(m_project->host.events, "ON_LAYER_ITEMS_CHANGED");
        openProjectIn({});
        IDictionary& description = m_project->manager->project();
        OverlayList::write({{makeTiff("a.tif", Qt::red), true, 1}, {path("gone.tif"), true, 0.5}},
                           m_folder->path(), description);
        QVERIFY(events.events.empty());
        openProjectIn(m_folder->path());
        QCOMPARE(list(), "a.tif gone.tif"_q);
        QCOMPARE(middle(), QColor(Qt::red));
        QCOMPARE(layer().item(1).fault, "There is no file \"gone.tif\"."_q);
        QCOMPARE(m_project->host.told, "Overlay image: There is no file \"gone.tif\"."_q);
        QVERIFY(!m_project->manager->isChanged());
        layer().moveItem(1, 0);
        QCOMPARE(OverlayList::read(description, m_folder->path()).front().path, path("gone.tif"));

        openProjectIn({});
        QCOMPARE(list(), QString());
        QCOMPARE(middle(), QColor(Qt::white));
        QCOMPARE(OverlayList::read(description, m_folder->path()).size(), std::size_t(2));
    }

    void saysWhatCannotBeShown()
    {
        m_folder->write("text.tif", "not a picture");
        m_folder->write("empty.tif", "");
        choose({path("text.tif"), makeTiff("a.tif", Qt::red), path("empty.tif")});
        QCOMPARE(m_boxes->told(), QStringList{"Error|Images that cannot be shown: 2."_q});
        const QStringList details = m_boxes->last.details.split(QLatin1Char('\n'));
        QCOMPARE(details.size(), 2);
        QVERIFY(details[0].contains("\"text.tif\""_q) && details[1].contains("\"empty.tif\""_q));
        QCOMPARE(list(), "a.tif"_q);
    }

    void aMovedFileIsFoundAgain()
    {
        openProjectIn({});
        OverlayList::write({{path("lost.tif"), true, 0.5}}, m_folder->path(),
                           m_project->manager->project());
        openProjectIn(m_folder->path());
        QCOMPARE(layer().itemActions(0), QStringList{"&Find Its File..."_q});
        m_chosen = m_folder->write("text.tif", "not a picture");
        layer().runItemAction(0, 0);
        QCOMPARE(m_boxes->told(), QStringList{"Error|Images that cannot be shown: 1."_q});
        QCOMPARE(list(), "lost.tif"_q);
        m_chosen = makeTiff("found.tif", Qt::black);
        layer().runItemAction(0, 0);
        QCOMPARE(list(), "found.tif"_q);
        const QColor color = middle();
        QVERIFY(std::abs(color.red() - 127) < 3);
        QVERIFY(layer().itemActions(0).isEmpty());
    }

    void offersToBuildOverviews()
    {
        const QString large = makeLargeTiff("large.tif");
        choose({large});
        QVERIFY(m_boxes->last.text.startsWith("Large images without overviews"_q));
        QVERIFY(m_boxes->last.text.contains("large.tif"_q));
        QVERIFY(!m_boxes->last.defaultButton); // No is the safe answer
        QVERIFY(dialog() == nullptr);
        QCOMPARE(layer().itemActions(0), QStringList{"&Build Overviews"_q});
        m_boxes->told();

        m_boxes->answer = Boxes::Button::Yes;
        choose({large});
        QVERIFY(dialog() != nullptr && dialog()->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!dialog()->isVisible(), 30000);
        QCOMPARE(m_project->host.told, "The overviews of \"large.tif\" are built."_q);
        QVERIFY(QFile::exists(large + ".ovr"_q));
        QVERIFY(layer().itemActions(0).isEmpty());
    }

    void buildingCanBeCancelled()
    {
        QVERIFY(!makeTiff("huge.tif", Qt::black, 50000).isEmpty());
        choose({path("huge.tif"), makeLargeTiff("large.tif")});
        layer().runItemAction(0, 0);
        layer().runItemAction(1, 0);
        QVERIFY(dialog()->isVisible());
        QTest::keyClick(dialog(), Qt::Key_Escape);
        QTRY_VERIFY_WITH_TIMEOUT(!dialog()->isVisible(), 10000);
        QCOMPARE(m_project->host.told, "Cancelled: \"huge.tif\" stays without overviews."_q);
        QCOMPARE(QDir(m_folder->path()).entryList({"*.ovr"_q}), QStringList());
        QVERIFY(m_boxes->told().size() == 1); // the offer
    }

private:
    [[nodiscard]] TifLayer& layer()
    {
        return dynamic_cast<TifLayer&>(*m_map->layers().find("TifLayer"_q));
    }
    [[nodiscard]] QString path(const char* name) const { return m_folder->path(name); }
    /// A picture of the whole map's area, or more. A large black one lacks overviews.
    QString makeTiff(const char* name, const QColor& color, int side = 200)
    {
        const MadeRaster made = plainRaster({side, side}, color, {500000, 4400200});
        return made.write(path(name)) ? path(name) : QString();
    }
    QString makeLargeTiff(const char* name) { return makeTiff(name, Qt::black, 6000); }
    void choose(const QStringList& paths)
    {
        m_chosen = paths.join(QLatin1Char('\n'));
        SetTifPathCommand(nullptr, &m_project->host).execute();
    }
    /// The names of the images from the top.
    [[nodiscard]] QString list()
    {
        QStringList names;
        for (int i = 0; i < layer().itemCount(); ++i)
            names << layer().item(i).caption;
        return names.join(QLatin1Char(' '));
    }
    QColor middle()
    {
        if (!QTest::qWaitFor([this] { return m_map->isUpToDate(); }, 20000))
            return {};
        return m_map->grab().toImage().pixelColor(100, 100);
    }
    DlgOverviews* dialog()
    {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (auto* const found = qobject_cast<DlgOverviews*>(widget))
                return found;
        }
        return nullptr;
    }
    void openProjectIn(const QString& folder) { m_project->tellProject(folder.toUtf8()); }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<OpenProject> m_project;
    std::unique_ptr<MapWindow> m_map;
    std::unique_ptr<Boxes> m_boxes;
    QString m_chosen;
    std::unique_ptr<FileDialog::Responder> m_files;
};

QTEST_MAIN(OverlaysTest)
#include "OverlaysTest.moc"
