#include "map/sheet/SheetLayout.h"

#include "lum_sdk/GroupedNumber.h"
#include "map/sheet/SheetSetup.h"
#include "map/sheet/SheetText.h"

#include <QCoreApplication>
#include <QFontMetricsF>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MapSheet)
};

constexpr double kInchMm = 25.4;
constexpr double kInchPixels = 96;
constexpr double kMm = kInchPixels / kInchMm; // pixels

// mm on A4
constexpr double kMargin = 10;
constexpr double kGap = 2;
constexpr double kLabelBand = 6; // for ticks and coordinates around the map
constexpr double kFieldPadding = 1.5;

constexpr int kTitleLines = 2;
constexpr int kFieldLines = 2;
constexpr double kUsualPaperMm = 210; // the shorter side of A4
constexpr double kMostTypeScale = 2.2;

constexpr double kFilled = 0.92;       // of the map's frame, when the scale follows the area
constexpr double kLeastFitScale = 500; // a single point is not shown at 1:1

/// The smallest round number that is not below `limit`.
double roundScale(double limit)
{
    constexpr std::array kSteps = {1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0,
                                   3.5, 4.0,  5.0, 6.0,  7.0, 8.0, 10.0};
    const double power = std::pow(10, std::floor(std::log10(limit)));
    for (const double step : kSteps) {
        if (step * power >= limit * (1 - 1e-12))
            return step * power;
    }
    return 10 * power;
}

double metresPerPixel(double scale)
{
    return scale / kMm / 1000;
}

/// The scale at which an area fills most of a frame.
double fittingScale(const QRectF& area, double unitM, const QSizeF& frame)
{
    const double pixelM = std::max(area.width() * unitM / (frame.width() * kFilled),
                                   area.height() * unitM / (frame.height() * kFilled));
    const double scale = pixelM * kMm * 1000;
    return roundScale(std::clamp(scale, kLeastFitScale, kMostScale));
}

SheetLayout::Field field(const QString& caption, const QString& text)
{
    return {{}, caption, {text}};
}

/// Places fields side by side at the bottom of an area, each in its share of the width.
/// \param padding pixels from the edge of a field to its texts
/// \returns their height
double placeFields(std::vector<SheetLayout::Field>& fields, const QRectF& area, double typeScale,
                   double padding)
{
    constexpr std::array kShares = {0.28, 0.42, 0.15, 0.15};
    const QFont font = sheetFont(sheettext::kField * typeScale);
    int lines = 1;
    double left = area.left();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        SheetLayout::Field& each = fields[i];
        const double width = area.width() * kShares[i];
        each.place = QRectF(left, 0, width, 0);
        each.lines = wrapped(each.lines.join(QString()), font, width - 2 * padding, kFieldLines);
        lines = std::max(lines, static_cast<int>(each.lines.size()));
        left += width;
    }
    const double height = QFontMetricsF(sheetFont(sheettext::kCaption * typeScale)).lineSpacing() +
                          lines * QFontMetricsF(font).lineSpacing() + 2 * padding;
    for (SheetLayout::Field& each : fields) {
        each.place.setTop(area.bottom() - height);
        each.place.setHeight(height);
    }
    return height;
}

} // namespace

QString scaleText(double scale)
{
    return QStringLiteral("1:") + lum::groupedNumber(static_cast<qint64>(std::llround(scale)));
}

SheetLayout::SheetLayout(const SheetSetup& setup) : ratio(setup.dpi / kInchPixels)
{
    const QSizeF paper = setup.paper.sizeMm(setup.isLandscape);
    page = QSize(static_cast<int>(std::lround(paper.width() / kInchMm * setup.dpi)),
                 static_cast<int>(std::lround(paper.height() / kInchMm * setup.dpi)));
    typeScale = std::clamp(std::sqrt(std::min(paper.width(), paper.height()) / kUsualPaperMm), 1.0,
                           kMostTypeScale);
    const double mm = kMm * typeScale;
    QRectF rest(QPointF(0, 0), paper * kMm);
    rest.adjust(kMargin * mm, kMargin * mm, -kMargin * mm, -kMargin * mm);

    const QFont font = sheetFont(sheettext::kTitle * typeScale, true);
    title = wrapped(setup.title, font, rest.width(), kTitleLines);
    if (!title.isEmpty()) {
        const double height = title.size() * QFontMetricsF(font).lineSpacing();
        titlePlace = QRectF(rest.topLeft(), QSizeF(rest.width(), height));
        rest.setTop(titlePlace.bottom() + kGap * mm);
    }
    padding = kFieldPadding * mm;
    fields = {field(Texts::tr("Project"), setup.project),
              field(Texts::tr("Coordinate system"), setup.systemName),
              field(Texts::tr("Scale"), QString()),
              field(Texts::tr("Date"), setup.date.toString(Qt::ISODate))};
    // The scale follows from the room above, and its own field needs one line at most.
    rest.adjust(kLabelBand * mm, kLabelBand * mm, -kLabelBand * mm, 0);
    rest.setBottom(rest.bottom() - placeFields(fields, rest, typeScale, padding) -
                   (kLabelBand + kGap) * mm);

    const double unitM = setup.unit.grid.metres;
    scale = setup.scale.value_or(fittingScale(setup.area, unitM, rest.size()));
    fields[2].lines = QStringList{scaleText(scale)};
    map = QRect((rest.topLeft() * ratio).toPoint(), (rest.bottomRight() * ratio).toPoint());
    map.setSize(map.size() - QSize(1, 1)); // a rectangle of corners counts both of them
    frame = QRectF(QPointF(map.topLeft()) / ratio, QSizeF(map.size()) / ratio);
    lookAt(setup.area, metresPerPixel(scale) / unitM);
}

void SheetLayout::lookAt(const QRectF& area, double pixel)
{
    const QPointF middle = area.center();
    const QPointF corner(middle.x() - frame.width() / 2 * pixel,
                         middle.y() + frame.height() / 2 * pixel);
    const QSize size(static_cast<int>(std::ceil(frame.width())),
                     static_cast<int>(std::ceil(frame.height())));
    view.setSize(size);
    view.setView(corner + QPointF(size.width() / 2.0, -size.height() / 2.0) * pixel, pixel);
    isWhole = area.width() <= frame.width() * pixel && area.height() <= frame.height() * pixel;
}

Transform SheetLayout::viewFrom(int row, int rows) const
{
    const QSize size(view.size().width(), static_cast<int>(std::ceil(rows / ratio)));
    const QPointF corner = view.ScreenToSurvey(QPointF(0, row / ratio));
    Transform part;
    part.setSize(size);
    part.setView(corner + QPointF(size.width() / 2.0, -size.height() / 2.0) * view.GetScale(),
                 view.GetScale());
    return part;
}

QRectF SheetLayout::visibleExtent() const
{
    return view.ScreenToSurvey(QRectF(QPointF(0, 0), frame.size())).normalized();
}
