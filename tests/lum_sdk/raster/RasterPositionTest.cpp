#include "lum_sdk/coords/ProjHandles.h"
#include "lum_sdk/raster/ScreenMapping.h"
#include "tests/lum_sdk/raster/RasterPictures.h"
#include "tests/support/MadeRaster.h"
#include "tests/support/TestFolder.h"

#include <cmath>

using namespace raster_test;

namespace {

/// A raster of 1000 x 800 pixels of 1 m, in the UTM zone 50N, whose pixels tell their place.
MadeRaster placeRaster()
{
    MadeRaster made;
    made.size = {1000, 800};
    made.value = placeValue;
    return made;
}

struct Zoom
{
    const char* name;
    double pixelM; ///< of the screen
    double ratio;  ///< device pixels
    QPointF shift; ///< of the view, metres
};

class SameSystem : public testing::TestWithParam<Zoom>
{
};

/// Expects at each device pixel the raster's pixel below its centre.
void expectPlaces(const QImage& picture, const lum::RasterView& view)
{
    int wrong = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QPointF centre = QPointF(x + 0.5, y + 0.5) / view.pixelRatio;
            const QPointF map = view.transform.ScreenToSurvey(centre);
            const QPointF place(map.x() - 500000, 4400000 - map.y());
            const QRgb color = picture.pixel(x, y);
            if (place.x() < 0 || place.y() < 0 || place.x() >= 1000 || place.y() >= 800) {
                wrong += color == kPaper ? 0 : 1;
                continue;
            }
            const QPoint found = placeOf(color);
            const double allowed = 0.5 + 0.01; // a pixel's centre is half of it away, at most
            if (std::abs(found.x() + 0.5 - place.x()) > allowed ||
                std::abs(found.y() + 0.5 - place.y()) > allowed)
                ++wrong;
        }
    }
    EXPECT_EQ(wrong, 0);
}

} // namespace

TEST_P(SameSystem, EveryPixelShowsWhatLiesThere)
{
    const Zoom& zoom = GetParam();
    const TestFolder folder;
    ASSERT_TRUE(placeRaster().write(folder.path("places.tif")));
    lum::RasterImage image(folder.path("places.tif"));
    lum::RasterView view;
    view.system = systemOf("32650");
    view.transform.setSize({300, 200});
    view.transform.setView(QPointF(500000, 4400000) + zoom.shift, zoom.pixelM);
    view.pixelRatio = zoom.ratio;
    expectPlaces(pictureOf(image, view), view);
}

INSTANTIATE_TEST_SUITE_P(
    Zooms, SameSystem,
    testing::Values(Zoom{"OneToOne", 1, 1, {300, -300}},
                    Zoom{"OneToOneBetweenPixels", 1, 1, {300.3, -300.4}},
                    Zoom{"OverTheCorner", 1, 1, {0, 0}}, Zoom{"LargePixels", 0.13, 1, {20.2, -7.1}},
                    Zoom{"HugePixels", 0.001, 1, {20.2, -7.1}},
                    Zoom{"FineScreen", 1, 2, {990, -790}},
                    Zoom{"FineScreenByAQuarter", 0.5, 1.25, {990.03, -790.03}}),
    [](const auto& test) { return test.param.name; });

namespace {

struct Systems
{
    const char* name;
    const char* project; ///< EPSG
    int raster;          ///< EPSG
    double pixelM;       ///< of the view
    QSize size;          ///< of the raster, pixels
    std::array<double, 6> place;
    std::optional<QPointF> center = {}; ///< of the view, map coordinates; by default the raster's
};

class OtherSystem : public testing::TestWithParam<Systems>
{
};

/// The way from map coordinates to pixels by PROJ alone.
class ExactWay
{
public:
    explicit ExactWay(const Systems& systems) : m_place(systems.place)
    {
        const std::string from = std::string("EPSG:") + systems.project;
        const std::string to = "EPSG:" + std::to_string(systems.raster);
        const lum::ProjObject found(
            proj_create_crs_to_crs(m_context.get(), from.c_str(), to.c_str(), nullptr));
        m_way.reset(proj_normalize_for_visualization(m_context.get(), found.get()));
    }

    [[nodiscard]] QPointF mapOf(const QPointF& pixel) const
    {
        const PJ_COORD found = proj_trans(m_way.get(), PJ_INV,
                                          proj_coord(m_place[0] + m_place[1] * pixel.x(),
                                                     m_place[3] + m_place[5] * pixel.y(), 0, 0));
        return {found.xy.x, found.xy.y};
    }

    /// NaN where there is no answer.
    [[nodiscard]] QPointF pixelOf(const QPointF& map) const
    {
        const PJ_COORD to = proj_trans(m_way.get(), PJ_FWD, proj_coord(map.x(), map.y(), 0, 0));
        proj_errno_reset(m_way.get());
        const PJ_COORD back = proj_trans(m_way.get(), PJ_INV, to);
        proj_errno_reset(m_way.get());
        if (!(std::hypot(back.xy.x - map.x(), back.xy.y - map.y()) < 1))
            return {std::nan(""), std::nan("")};
        return {(to.xy.x - m_place[0]) / m_place[1], (to.xy.y - m_place[3]) / m_place[5]};
    }

private:
    lum::ProjContext m_context = lum::makeProjContext();
    lum::ProjObject m_way;
    std::array<double, 6> m_place;
};

lum::RasterInfo infoOf(const Systems& systems)
{
    lum::RasterInfo info;
    info.size = systems.size;
    info.levels = {{systems.size, systems.size}};
    info.isPlaced = true;
    info.toCoordinates = systems.place;
    info.wkt = "EPSG:" + std::to_string(systems.raster);
    return info;
}

/// Where the centres of all device pixels lie in the raster, as the cells say; NaN outside of them.
std::vector<QPointF> mappedPixels(const lum::RasterView& view, const lum::RasterPlace& place)
{
    const QSize size = view.pixels();
    std::vector<QPointF> found(std::size_t(size.width()) * std::size_t(size.height()),
                               {std::nan(""), std::nan("")});
    for (const lum::MappedCell& cell : lum::mapScreen(view, place)) {
        const QRect shown = cell.area & QRect(QPoint(0, 0), size);
        for (int y = shown.top(); y <= shown.bottom(); ++y) {
            for (int x = shown.left(); x <= shown.right(); ++x)
                found[std::size_t(y * size.width() + x)] = cell.at(x + 0.5, y + 0.5);
        }
    }
    return found;
}

} // namespace

TEST_P(OtherSystem, IsExactToHalfAPixel)
{
    const Systems& systems = GetParam();
    lum::RasterView view;
    view.system = systemOf(systems.project);
    view.transform.setSize({500, 400});
    const lum::RasterInfo info = infoOf(systems);
    const lum::RasterPlace place(info, view.system);
    const ExactWay exact(systems);
    const QPointF middle(info.size.width() / 2.0, info.size.height() / 2.0);
    view.transform.setView(systems.center.value_or(exact.mapOf(middle)), systems.pixelM);
    const std::vector<QPointF> found = mappedPixels(view, place);
    const auto exactAt = [&](double x, double y) {
        return exact.pixelOf(view.transform.ScreenToSurvey(QPointF(x, y)));
    };
    int seen = 0;
    int missing = 0;
    int ghosts = 0; // where the world has no place
    double worst = 0;
    for (int y = 0; y < 400; ++y) {
        for (int x = 0; x < 500; ++x) {
            const QPointF right = exactAt(x + 0.5, y + 0.5);
            if (std::isnan(right.x()) && !std::isnan(found[std::size_t(y * 500 + x)].x()))
                ++ghosts;
            if (!(right.x() > 0 && right.y() > 0 && right.x() < info.size.width() &&
                  right.y() < info.size.height()))
                continue;
            const QPointF mapped = found[std::size_t(y * 500 + x)];
            if (std::isnan(mapped.x())) {
                ++missing;
                continue;
            }
            ++seen;
            // in device pixels, along both sides of one
            const QPointF across = exactAt(x + 1, y + 0.5) - exactAt(x, y + 0.5);
            const QPointF down = exactAt(x + 0.5, y + 1) - exactAt(x + 0.5, y);
            const double area = across.x() * down.y() - across.y() * down.x();
            const QPointF gap = mapped - right;
            const double u = (gap.x() * down.y() - gap.y() * down.x()) / area;
            const double v = (across.x() * gap.y() - across.y() * gap.x()) / area;
            if (std::isfinite(u) && std::isfinite(v))
                worst = std::max({worst, std::abs(u), std::abs(v)});
        }
    }
    RecordProperty("seen", seen);
    EXPECT_GT(seen, 1000);
    EXPECT_EQ(missing, 0);
    EXPECT_EQ(ghosts, 0);
    EXPECT_LE(worst, 0.5);
}

namespace {
constexpr double kWorld = 20037508.342789244; // half the equator of Web Mercator, metres
constexpr double kPixel = 2 * kWorld / 4096;
constexpr QSize kLarge(4096, 4096);
constexpr QSize kFlat(4096, 2048);
constexpr std::array<double, 6> kWorldMercator{-kWorld, kPixel, 0, kWorld, 0, -kPixel};
constexpr std::array<double, 6> kWorldDegrees{-180, 360.0 / 4096, 0, 90, 0, -180.0 / 2048};
constexpr std::array<double, 6> kDegreesFrom0{0, 360.0 / 4096, 0, 90, 0, -180.0 / 2048};
} // namespace

INSTANTIATE_TEST_SUITE_P(
    Places, OtherSystem,
    testing::Values(
        Systems{"MercatorUnderUtm", "32650", 3857, 4, kLarge, {13020000, 1, 0, 4830000, 0, -1}},
        Systems{"ZoneEdge", "32650", 32651, 7, kLarge, {223000, 10, 0, 4420000, 0, -10}},
        Systems{"FarZone", "32650", 32656, 90, kLarge, {300000, 100, 0, 4800000, 0, -100}},
        Systems{"Degrees", "32650", 4326, 700, kLarge, {115, 0.001, 0, 42, 0, -0.001}},
        Systems{"World", "32650", 3857, 30000, kLarge, kWorldMercator, QPointF(500000, 4400000)},
        Systems{"FarWorld", "32650", 3857, 300000, kLarge, kWorldMercator, QPointF(500000, 0)},
        Systems{"DateLine", "3832", 4326, 20000, kFlat, kWorldDegrees, QPointF(3000000, 0)},
        Systems{"WorldDegrees", "3857", 4326, 90000, kFlat, kWorldDegrees, QPointF(0, 0)},
        Systems{"SouthPole", "3031", 4326, 12000, kFlat, kWorldDegrees, QPointF(0, 0)},
        Systems{"NorthPole", "32661", 3857, 12000, kLarge, kWorldMercator, QPointF(2e6, 2e6)},
        Systems{"OtherTurn", "32650", 4326, 2000, kFlat, kDegreesFrom0, QPointF(500000, 4400000)}),
    [](const auto& test) { return test.param.name; });

// --- datums ---

namespace {

/// A system like UTM zone 20 of Beijing 1954, with a shift that only the office knows.
basalt::Dictionary localSystem(double shiftX)
{
    basalt::Dictionary system = systemOf("21420");
    for (const char* key : {"_7rx", "_7ry", "_7rz", "_7ppm"})
        system.set(key, "0");
    system.set("_7type", "1");
    dic_set_value(system, "_7dx", shiftX);
    system.set("_7dy", "140");
    system.set("_7dz", "80");
    return system;
}

lum::RasterInfo rasterOf(int epsg, const QPointF& corner, double pixel)
{
    return infoOf({"", "", epsg, 1, {1000, 1000}, {corner.x(), pixel, 0, corner.y(), 0, -pixel}});
}

} // namespace

TEST(RasterDatum, ARasterOnTheProjectsDatumIsNotMovedByTheProjectsOwnShift)
{
    const basalt::Dictionary system = localSystem(-30);
    const lum::RasterInfo own = rasterOf(21420, {20500000, 4400000}, 1);
    const lum::RasterPlace same(own, system);
    EXPECT_TRUE(same.isAffine());
    EXPECT_EQ(same.extent(), QRectF(20500000, 4399000, 1000, 1000));

    // The neighbour zone lies on the datum, too: both places come from one geographic position.
    const lum::RasterInfo info = rasterOf(21419, {19760000, 4400000}, 1);
    const lum::RasterPlace neighbour(info, system);
    EXPECT_FALSE(neighbour.isAffine());
    const lum::ProjContext context = lum::makeProjContext();
    const lum::ProjObject way(
        proj_create_crs_to_crs(context.get(), "EPSG:21419", "EPSG:21420", nullptr));
    const lum::ProjObject shown(proj_normalize_for_visualization(context.get(), way.get()));
    const PJ_COORD exact = proj_trans(shown.get(), PJ_FWD, proj_coord(19760000, 4400000, 0, 0));
    QPointF corner(0, 0);
    neighbour.toMap({&corner, 1});
    EXPECT_NEAR(corner.x(), exact.xy.x, 0.002);
    EXPECT_NEAR(corner.y(), exact.xy.y, 0.002);
}

TEST(RasterDatum, TheProjectsShiftLeadsToRastersOnWgs84)
{
    const lum::RasterInfo info = rasterOf(4326, {117.001, 39.7}, 1e-5);
    QPointF corner(0, 0);
    lum::RasterPlace(info, localSystem(-30)).toMap({&corner, 1});
    QPointF moved(0, 0);
    lum::RasterPlace(info, localSystem(-130)).toMap({&moved, 1});
    // 100 m along the earth's X are sin(117 deg) of it to the east or west here, and
    // sin(39.7 deg) cos(117 deg) to the north or south.
    EXPECT_NEAR(std::abs(corner.x() - moved.x()), 89.1, 0.5);
    EXPECT_NEAR(std::abs(corner.y() - moved.y()), 29.0, 0.5);
}

TEST(RasterDatum, OtherDatumsOnTheSameEllipsoidAreToldApart)
{
    // PSAD56 and Campo Inchauspe, UTM zone 19S, both on the International ellipsoid of 1924.
    const basalt::Dictionary system = systemOf("24879");
    const lum::RasterInfo own = rasterOf(24879, {500000, 6000000}, 1);
    EXPECT_TRUE(lum::RasterPlace(own, system).isAffine());
    const lum::RasterInfo other = rasterOf(2315, {500000, 6000000}, 1);
    const lum::RasterPlace place(other, system);
    EXPECT_FALSE(place.isAffine());
    const QPointF gap = place.extent().topLeft() - QPointF(500000, 5999000);
    EXPECT_GT(std::hypot(gap.x(), gap.y()), 200);
}

TEST(RasterDatum, WithoutASystemOfEitherTheCoordinatesAreTheProjects)
{
    lum::RasterInfo info = rasterOf(32651, {500000, 4400000}, 1);
    EXPECT_EQ(lum::RasterPlace(info, basalt::Dictionary()).extent(),
              QRectF(500000, 4399000, 1000, 1000));
    info.wkt.clear();
    EXPECT_TRUE(lum::RasterPlace(info, systemOf("32650")).isAffine());
    basalt::Dictionary south = systemOf("2053"); // axes to the south and to the west
    EXPECT_EQ(lum::RasterPlace(info, south).extent(), QRectF(-501000, -4400000, 1000, 1000));
}
