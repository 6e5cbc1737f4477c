#include "map/sheet/MapSheet.h"

#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/raster/RasterImage.h"
#include "map/PictureFrame.h"
#include "map/sheet/MapGround.h"
#include "map/sheet/SheetBands.h"
#include "map/sheet/SheetFile.h"
#include "map/sheet/SheetGrid.h"
#include "map/sheet/SheetLayout.h"
#include "map/sheet/SheetText.h"
#include "model/CoordinateRecord.h"
#include "quality/colors/ResultColors.h"
#include "tests/map/TestSurvey.h"
#include "tests/support/HttpTestServer.h"
#include "tests/support/Literals.h"
#include "tests/support/MadeRaster.h"
#include "tests/support/Pixels.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TestFolder.h"

#include <QDir>
#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>

namespace {

constexpr double kInchMm = 25.4;
const QRectF kBlock(500100, 4400200, 300, 200); // of `blockSheet`, map coordinates

basalt::Dictionary systemOf(const char* code)
{
    basalt::Dictionary system;
    if (const std::string fault = fillFromEpsg(code, system); !fault.empty())
        qFatal("%s", fault.c_str());
    system.set(CoordinateRecord::kId, std::string("EPSG:") + code);
    return system;
}

/// A sheet whose map is a black rectangle around all of `area`.
MapSheet blockSheet(const QRectF& area, const basalt::Dictionary& system = {})
{
    MapSheet sheet;
    sheet.ground = std::make_shared<MapGround>(system);
    sheet.drawing.extent = area;
    sheet.drawing.paint = [area](const PictureFrame& frame, QPainter& painter) {
        const QPolygonF corners(
            QVector<QPointF>{frame.transform.SurveyToScreen(area.topLeft()),
                             frame.transform.SurveyToScreen(area.bottomRight())});
        painter.fillRect(corners.boundingRect(), Qt::black);
        frame.lineDone(50);
    };
    nameSheet(sheet, "测区 Block 3"_q, system);
    sheet.setup.unit.grid = lum::lengthUnitOf(system);
    return sheet;
}

QImage mapOf(const MapSheet& sheet, int dots = kDotsABand)
{
    const SheetLayout layout(sheet.setup);
    QImage whole(layout.map.size(), QImage::Format_RGB32);
    QPainter painter(&whole);
    SheetWatch watch;
    const auto take = [&](const QImage& band, int row) {
        painter.drawImage(0, row, band);
        return true;
    };
    return paintBands(sheet, layout, watch, take, dots) ? whole : QImage();
}

/// The first band of a raster file.
QImage redOf(const QString& path)
{
    const GDALDatasetH file = GDALOpen(path.toUtf8().constData(), GA_ReadOnly);
    QImage image(GDALGetRasterXSize(file), GDALGetRasterYSize(file), QImage::Format_Grayscale8);
    const bool isRead = GDALRasterIOEx(GDALGetRasterBand(file, 1), GF_Read, 0, 0, image.width(),
                                       image.height(), image.bits(), image.width(), image.height(),
                                       GDT_Byte, 1, image.bytesPerLine(), nullptr) == CE_None;
    GDALClose(file);
    return isRead ? image : QImage();
}

/// Of all black pixels.
QRect blackPart(const QImage& image)
{
    QRect part;
    countPixels(image, image.rect(), [&](const QPoint& at) {
        const bool isBlack = qGray(image.pixel(at)) < 128;
        if (isBlack)
            part |= QRect(at, QSize(1, 1));
        return isBlack;
    });
    return part;
}

int differingPixels(const QImage& a, const QImage& b)
{
    constexpr int kRounding = 16; // of 255
    return countPixels(a, a.rect(), [&](const QPoint& at) {
        return qAbs(qGray(a.pixel(at)) - qGray(b.pixel(at))) > kRounding;
    });
}

/// What the pages of a PDF file draw, as PDF operators.
QByteArray operatorsOf(const QByteArray& pdf)
{
    QByteArray all;
    for (int at = pdf.indexOf("\nstream\nx"); at >= 0; at = pdf.indexOf("\nstream\nx", at + 1)) {
        QByteArray packed("\0\x10\0\0", 4); // a guess of the size, as qUncompress wants it
        packed += pdf.mid(at + 8, pdf.indexOf("endstream", at) - at - 8);
        const QByteArray text = qUncompress(packed);
        if (text.contains(" Do"))
            all += text;
    }
    return all;
}

/// A survey in two colours with names where there is room, which must not depend on bands.
MapSheet surveySheet()
{
    const SurveyPoints points = TestSurvey().results(30, 40, 3, 8);
    const ResultColors colors(
        "Kind"_q, {{"one"_q, 0xff0072b2}, {"other"_q, 0xffd55e00}},
        [](const SurveyPoint& point) { return std::uint8_t(point.pointNumber.back() % 2); });
    SurveyPictureOptions options;
    options.names = SurveyPictureOptions::Names::WithRoom;
    MapSheet sheet;
    sheet.ground = std::make_shared<MapGround>(systemOf("32650"));
    sheet.drawing = drawingOf(points, colors, toMapOf(basalt::Dictionary()), options);
    nameSheet(sheet, "Survey"_q, systemOf("32650"));
    sheet.setup.dpi = 150;
    return sheet;
}

} // namespace

class MapSheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Whatever scale, unit and resolution: a length on the ground has its length on paper.
    void isTrueToScale_data()
    {
        QTest::addColumn<QByteArray>("code");
        QTest::addColumn<double>("scale");
        QTest::addColumn<double>("dpi");
        QTest::newRow("metres") << QByteArray("32650") << 2000.0 << 300.0;
        QTest::newRow("feet") << QByteArray("2277") << 1200.0 << 150.0;
        QTest::newRow("odd dots") << QByteArray("32650") << 4321.0 << 211.0;
        QTest::newRow("wider than a band of paper") << QByteArray("32650") << 5000.0 << 97.0;
    }
    void isTrueToScale()
    {
        QFETCH(QByteArray, code);
        QFETCH(double, scale);
        QFETCH(double, dpi);
        const basalt::Dictionary system = systemOf(code.constData());
        const double unitM = lum::lengthUnitOf(system).metres;
        MapSheet sheet = blockSheet(kBlock, system);
        sheet.setup.scale = scale;
        sheet.setup.dpi = dpi;
        const double dotsAUnit = unitM * 1000 / scale / kInchMm * dpi;

        const QRect part = blackPart(mapOf(sheet));

        QVERIFY(std::abs(part.width() - kBlock.width() * dotsAUnit) <= 1);
        QVERIFY(std::abs(part.height() - kBlock.height() * dotsAUnit) <= 1);
        const SheetLayout layout(sheet.setup);
        const QPointF middle =
            QRectF(part).center() - QRectF(QPointF(), layout.map.size()).center();
        QVERIFY(std::hypot(middle.x(), middle.y()) < 1.5);
    }

    /// The picture of the map keeps its scale in the PDF file: a dot of it is a dot of paper.
    void aPdfIsTrueToScale()
    {
        const TestFolder folder;
        MapSheet sheet = blockSheet(kBlock, systemOf("32650"));
        sheet.setup.scale = 5000;
        sheet.setup.isLandscape = true;
        sheet.setup.title = "A4 横向"_q;
        SheetWatch watch;
        const Outcome outcome = writeSheet(sheet, folder.path("图 1.pdf"), watch);
        QVERIFY2(outcome.isDone(), qPrintable(outcome.text()));
        QVERIFY(outcome.text().contains("1:5,000 on A4"_q));

        const QByteArray pdf = TestFolder::read(folder.path("图 1.pdf"));
        QVERIFY(pdf.contains("/MediaBox [0 0 842")); // landscape
        const QString drawn = QString::fromLatin1(operatorsOf(pdf));
        static const QRegularExpression kDot("([\\d.]+) 0 0 -\\1 0 595"_q); // in points
        static const QRegularExpression kImage(
            "1 0 0 1 (\\d+) (\\d+) cm\\s+(\\d+) 0 0 -(\\d+) 0 \\4 cm /Im\\d+  Do"_q);
        const QRegularExpressionMatch dot = kDot.match(drawn);
        const QRegularExpressionMatch image = kImage.match(drawn);
        QVERIFY2(dot.hasMatch() && image.hasMatch(), qPrintable(drawn.left(300)));
        const SheetLayout layout(sheet.setup);
        QCOMPARE(dot.captured(1).toDouble(), 72.0 / 300);
        QCOMPARE(QPoint(image.captured(1).toInt(), image.captured(2).toInt()),
                 layout.map.topLeft());
        QCOMPARE(QSize(image.captured(3).toInt(), image.captured(4).toInt()), layout.map.size());
        // 1 mm is 5 m: so many map units to a dot
        QVERIFY(std::abs(layout.view.GetScale() / layout.ratio - 5 * kInchMm / 300) < 1e-9);
    }

    /// On each paper, with any texts, the parts stand beside each other on the paper.
    void nothingOverlaps()
    {
        for (const Paper& paper : papers()) {
            for (const QString& title : {QString(), "测区"_q, QString(200, QLatin1Char('W')),
                                         "A long title of words "_q.repeated(9)}) {
                SheetSetup setup = blockSheet(kBlock, systemOf("32650")).setup;
                setup.paper = paper;
                setup.isLandscape = title.size() > 3;
                setup.title = title;
                setup.project = title;
                setup.systemName = title;
                const SheetLayout layout(setup);

                const QRectF page(QPointF(0, 0), QSizeF(layout.page) / layout.ratio);
                const double label = 14 * layout.typeScale; // tick and coordinate
                QVERIFY(page.contains(layout.frame.adjusted(-label, -label, label, label)));
                QVERIFY(layout.frame.height() > page.height() / 2);
                QVERIFY(layout.title.size() <= 2);
                QVERIFY(title.isEmpty() || layout.titlePlace.bottom() < layout.frame.top() - label);
                QVERIFY(page.contains(layout.titlePlace) || title.isEmpty());
                for (const QString& line : layout.title)
                    QVERIFY(QFontMetricsF(sheetFont(sheettext::kTitle * layout.typeScale, true))
                                .horizontalAdvance(line) <= page.width());
                double left = 0;
                for (const SheetLayout::Field& field : layout.fields) {
                    QVERIFY(page.contains(field.place));
                    QVERIFY(field.place.top() > layout.frame.bottom() + label);
                    QVERIFY(field.place.left() >= left - 1e-6);
                    left = field.place.right();
                    for (const QString& line : field.lines)
                        QVERIFY(QFontMetricsF(sheetFont(sheettext::kField * layout.typeScale))
                                    .horizontalAdvance(line) <= field.place.width());
                }
                QVERIFY(layout.isWhole);
            }
        }
    }

    void theFittingScaleIsRoundAndTheLargest()
    {
        SheetSetup setup = blockSheet(kBlock, systemOf("32650")).setup;
        QCOMPARE(SheetLayout(setup).scale, 2000.0); // 300 m in 0.92 of 178 mm
        setup.area = QRectF(500000, 4400000, 12000, 9000);
        QCOMPARE(SheetLayout(setup).scale, 80000.0);
        setup.area = QRectF(500000, 4400000, 1e-3, 1e-3);
        QCOMPARE(SheetLayout(setup).scale, 500.0); // one point
        setup.scale = 250;
        setup.area = kBlock;
        QVERIFY(!SheetLayout(setup).isWhole);
    }

    /// Axes to the south and west have their own coordinates and letters.
    void theGridHasTheProjectsCoordinates()
    {
        SheetSetup setup = blockSheet(kBlock, systemOf("32650")).setup;
        setup.scale = 2000;
        const SheetLayout layout(setup);
        const SheetGrid grid(layout, setup);
        QVERIFY(grid.eastings.size() >= 3);
        const SheetGrid::Line& first = grid.eastings.front();
        QCOMPARE(first.label, "500100 E"_q);
        QVERIFY(std::abs(layout.view.ScreenToSurvey(QPointF(first.place, 0)).x() - 500100) < 1e-6);
        QVERIFY(grid.northings.front().place < grid.northings.back().place);
        QVERIFY(grid.northings.back().label < grid.northings.front().label);

        setup.system.set("axis_direction", "SW");
        setup.area = QRectF(-300, -400, 300, 300); // westings and southings are positive
        const SheetGrid turned(SheetLayout(setup), setup);
        QVERIFY(turned.eastings.front().label.endsWith(" W"_q));
        QCOMPARE(turned.northings.front().label, "100 S"_q);
    }

    void bandsAreOnePicture()
    {
        const MapSheet sheet = surveySheet();
        const QImage whole = mapOf(sheet);
        QVERIFY(!whole.isNull());
        const QImage banded = mapOf(sheet, 97 * whole.width());
        QCOMPARE(differingPixels(banded, whole), 0);
    }

    /// Halos go on from band to band, and rasters fit together.
    void bandsFitTogetherOverAGround()
    {
        const TestFolder folder;
        const MadeRaster made = plainRaster({1200, 3400}, Qt::darkGreen, {499900, 4403100});
        QVERIFY(made.write(folder.path("ground.tif")));
        const MapSheet sheet = surveySheet();
        QCOMPARE(sheet.ground->addOverlay(folder.path("ground.tif")), QString());
        const QImage whole = mapOf(sheet);
        const QImage banded = mapOf(sheet, 97 * whole.width());
        const int seams = whole.height() / 97;
        QVERIFY(differingPixels(banded, whole) <= 4 * seams);
    }

    /// The file lies where the map is, for every way to write a coordinate system.
    void aGeoTiffLiesInItsPlace_data()
    {
        QTest::addColumn<QByteArray>("code");
        QTest::addColumn<QStringList>("changes");
        QTest::newRow("registered") << QByteArray("32650") << QStringList();
        QTest::newRow("feet") << QByteArray("2277") << QStringList();
        QTest::newRow("south and west") << QByteArray("2053") << QStringList();
        QTest::newRow("own meridian") << QByteArray("32650")
                                      << QStringList{"project_type=1"_q, "org_lon=116.5"_q,
                                                     "factor=1.0001"_q, "false_east=600000"_q};
        QTest::newRow("own datum")
            << QByteArray("32650") << QStringList{"_7type=2"_q, "_7dx=120"_q, "_7dy=-40"_q,
                                                  "_7dz=80"_q,  "_7rx=2"_q,   "_7ppm=3"_q};
        QTest::newRow("plane shift") << QByteArray("32650")
                                     << QStringList{"_4valid=1"_q, "_4dx=500"_q, "_4dy=-800"_q,
                                                    "_4r=0.5"_q, "_4s=1.00001"_q};
        QTest::newRow("equal area") << QByteArray("5070") << QStringList{"factor=0.9999"_q};
    }
    void aGeoTiffLiesInItsPlace()
    {
        QFETCH(QByteArray, code);
        QFETCH(QStringList, changes);
        basalt::Dictionary system = systemOf(code.constData());
        for (const QString& change : changes)
            system.set(change.section(QLatin1Char('='), 0, 0).toStdString(),
                       change.section(QLatin1Char('='), 1).toStdString());
        const TestFolder folder;
        MapSheet sheet = blockSheet(kBlock, system);
        sheet.setup.dpi = 100;
        sheet.setup.scale = 10000;
        SheetWatch watch;
        const Outcome outcome = writeSheet(sheet, folder.path("map.tif"), watch);
        QVERIFY2(outcome.isDone(), qPrintable(outcome.text()));
        QVERIFY2(!outcome.text().contains(QLatin1Char('\n')), qPrintable(outcome.text()));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("map.tif"_q));

        // Read by the other way, as an overlay of the project, it covers what was painted.
        const SheetLayout layout(sheet.setup);
        const double dot = layout.view.GetScale() / layout.ratio;
        const lum::RasterImage image(folder.path("map.tif"));
        const QRectF seen = image.extent(system);
        const QRectF painted = layout.visibleExtent();
        QVERIFY(std::abs(seen.left() - painted.left()) < dot / 2);
        QVERIFY(std::abs(seen.right() - painted.right()) < dot / 2);
        QVERIFY(std::abs(seen.top() - painted.top()) < dot / 2);
        QVERIFY(std::abs(seen.bottom() - painted.bottom()) < dot / 2);
        QCOMPARE(redOf(folder.path("map.tif")),
                 mapOf(sheet).convertToFormat(QImage::Format_Grayscale8));
    }

    void aRegisteredSystemKeepsItsCode()
    {
        const TestFolder folder;
        MapSheet sheet = blockSheet(kBlock, systemOf("32650"));
        sheet.setup.dpi = 96;
        SheetWatch watch;
        QVERIFY(writeSheet(sheet, folder.path("map.tiff"), watch).isDone());
        const GDALDatasetH file =
            GDALOpen(folder.path("map.tiff").toUtf8().constData(), GA_ReadOnly);
        std::array<double, 6> transform{};
        GDALGetGeoTransform(file, transform.data());
        QCOMPARE(QByteArray(OSRGetAuthorityCode(GDALGetSpatialRef(file), nullptr)),
                 QByteArray("32650"));
        const SheetLayout layout(sheet.setup);
        QCOMPARE(transform[0], layout.visibleExtent().left());
        QCOMPARE(transform[3], layout.visibleExtent().bottom());
        QCOMPARE(transform[1], 2000 * kInchMm / 1000 / 96); // metres a dot at 1:2000
        QCOMPARE(transform[5], -transform[1]);
        GDALClose(file);
    }

    /// All tiles come before the map is painted, no sharper than a service can give them, and what
    /// does not come is told.
    void aBaseMapIsWaitedFor()
    {
        HttpTestServer server;
        lum::BaseMap tiles;
        tiles.name = "Tiles"_q;
        tiles.address = server.address("/{z}/{x}/{y}.png");
        tiles.mayKeepTiles = false;
        MapSheet sheet = blockSheet(kBlock, systemOf("32650"));
        sheet.drawing.paint = [](const PictureFrame&, QPainter&) {};
        sheet.setup.scale = 20000;
        sheet.ground->setBaseMap(tiles);
        sheet.setup.dpi = 144;
        const QImage direct = mapOf(sheet);
        const std::size_t asked = server.requests().size();
        QVERIFY(asked > 0);
        QVERIFY(direct.pixelColor(3, 3) != QColor(Qt::white));
        sheet.setup.dpi = 288;
        const QImage sharp = mapOf(sheet).scaled(direct.size());
        QVERIFY(server.requests().size() <= asked + 6); // the edges may touch others
        QVERIFY(differingPixels(sharp, direct) < direct.width() * direct.height() / 50);

        server.behave(HttpTestServer::Behaviour::ServerError);
        const TestFolder folder;
        MapSheet far = blockSheet(kBlock.translated(90000, 0), systemOf("32650"));
        far.ground->setBaseMap(tiles);
        SheetWatch watch;
        const Outcome outcome = writeSheet(far, folder.path("a.tif"), watch);
        QCOMPARE(outcome.kind(), Outcome::Kind::Failed);
        QVERIFY2(outcome.text().contains("Tiles"_q), qPrintable(outcome.text()));
    }

    /// A map with a hole is written all the same, and no success.
    void aGroundWithAHoleIsTold()
    {
        const TestFolder folder;
        MadeRaster made;
        made.size = {1024, 1024};
        made.options = {"TILED=YES", "COMPRESS=DEFLATE"};
        made.place = {500000, 0.5, 0, 4400500, 0, -0.5};
        made.value = [](int column, int row, int) { return (column * 31 + row * 17) % 200 + 40; };
        QVERIFY(made.write(folder.path("cut off.tif")));
        QFile file(folder.path("cut off.tif"));
        QVERIFY(file.resize(file.size() / 2));
        const MapSheet sheet = blockSheet(kBlock, systemOf("32650"));
        QCOMPARE(sheet.ground->addOverlay(folder.path("cut off.tif")), QString());
        SheetWatch watch;
        const Outcome outcome = writeSheet(sheet, folder.path("a.pdf"), watch);
        QCOMPARE(outcome.kind(), Outcome::Kind::Failed);
        QVERIFY(
            outcome.text().contains("is written, but not complete: Parts of \"cut off.tif\""_q));
        QVERIFY(TestFolder::read(folder.path("a.pdf")).startsWith("%PDF"));
    }

    void saysWhatIsWrongAndLeavesNothing()
    {
        const TestFolder folder;
        const MapSheet sheet = blockSheet(kBlock, systemOf("32650"));
        SheetWatch watch;
        const auto fault = [&](const MapSheet& each, const QString& path) {
            const Outcome outcome = writeSheet(each, path, watch);
            return outcome.isDone() ? "done"_q : outcome.text();
        };
        QVERIFY(fault(sheet, "map.jpg"_q).contains("\"map.jpg\" ends neither"_q));
        MapSheet empty = sheet;
        empty.setup.area = QRectF();
        QVERIFY(fault(empty, folder.path("a.pdf")).contains("no design points"_q));
        empty.drawing.isSurvey = true;
        QVERIFY(fault(empty, folder.path("a.pdf")).contains("no survey results"_q));
        MapSheet poster = sheet;
        poster.setup.paper = *findPaper("a0"_q);
        poster.setup.dpi = 600;
        QVERIFY(fault(poster, folder.path("a.png")).contains("up to 401 dots"_q));
        for (const char* const name : {"a.pdf", "a.png", "a.tif"}) {
            const QString missing = folder.path("missing/"_q + QString::fromLatin1(name));
            QVERIFY(fault(sheet, missing).startsWith("Cannot write \""_q + missing));
            const QString old = folder.write(name, "old");
            {
                const SmallFiles full(2000);
                QVERIFY(fault(sheet, old).startsWith("Cannot write \""_q + old));
            }
            watch.report = [&](double) { watch.isCancelled = true; };
            QCOMPARE(fault(sheet, old), "Cancelled; no file was written."_q);
            watch.report = [](double) {};
            watch.isCancelled = false;
            QCOMPARE(TestFolder::read(old), QByteArray("old"));
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 3);
    }
};

QTEST_MAIN(MapSheetTest)
#include "MapSheetTest.moc"
