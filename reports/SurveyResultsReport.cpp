#include "reports/SurveyResultsReport.h"

#include "exchange/workbook/Workbook.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "quality/QualityLimits.h"
#include "quality/QualityTests.h"
#include "reports/ReportKinds.h"
#include "reports/ReportSheets.h"
#include "reports/ReportSteps.h"
#include "reports/ResultCells.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Form = SheetColumn::Form;

constexpr std::size_t kFarthest = 10; // rows of a table of the summary

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SurveyResultsReport)
};

/// What there is of receivers or sources.
struct Tally
{
    std::size_t design = 0;
    std::size_t staked = 0; ///< design points with a result
    std::size_t results = 0;
    std::size_t compared = 0; ///< results with a design position
    std::size_t beyond = 0;   ///< those that lie farther from it than the limit

    Tally& operator+=(const Tally& other)
    {
        design += other.design;
        staked += other.staked;
        results += other.results;
        compared += other.compared;
        beyond += other.beyond;
        return *this;
    }
};

/// From where a point was designed to where it was measured; lengths in metres.
struct Move
{
    double north = 0;
    double east = 0;
    double up = 0;
    double distance = 0;
    double bearingDeg = 0; ///< clockwise from grid north, [0, 360); NaN without a distance
    bool isBeyond = false; ///< the distance is above its limit, as the quality check judges it
};

double bearing(double north, double east)
{
    if (north == 0 && east == 0)
        return std::nan("");
    constexpr double kHundredths = 100;
    const double degrees = std::atan2(east, north) * 180 / M_PI;
    // Rounded before the turn is taken off, so that no cell shows 360.
    return std::fmod(std::round((degrees + 360) * kHundredths) / kHundredths, 360);
}

class Report
{
public:
    Report(const QString& path, const ReportInput& input)
        : m_input(input), m_axes(lum::planeAxes(input.coordParameters)),
          m_limits(QualityLimits::from(input.qualityParameters)),
          m_book(path,
                 {findReportKind("results")->captionText(), input.projectName, input.program}),
          m_steps(input, m_book, 2 * input.survey.pointCount() + input.design.pointCount())
    {
        m_limits.planeUnitM = lum::lengthUnitOf(input.coordParameters).metres;
    }

    Outcome write();

private:
    bool writeResults();
    bool writeNotStaked();
    bool writeMoved();
    void addMoveRow(Sheet& sheet, const SurveyPoint& point, const Move& move);
    void writeSummary(Page& page);
    void writeTallies(Page& page);
    void writeFarthest(Page& page);
    void writeObstacles(Page& page);
    [[nodiscard]] std::vector<FigureDefinition> definitions() const;
    [[nodiscard]] QString notice() const;
    [[nodiscard]] Move moveOf(const SurveyPoint& point) const;
    void keepFarthest(const SurveyPoint& point, const Move& move);
    [[nodiscard]] Tally total() const { return Tally(m_tallies[0]) += m_tallies[1]; }
    [[nodiscard]] QString inPlaneUnit(const QString& name) const;

    /// Calls `visit` with each result of the choice. \returns false when the report is to stop
    template <class Visit>
    bool forEachResult(Visit visit);

    const ReportInput& m_input;
    lum::PlaneAxes m_axes;
    QualityLimits m_limits;
    Workbook m_book;
    ReportSteps m_steps;
    std::array<Tally, 2> m_tallies;                              ///< sources, receivers
    std::map<std::string, std::size_t> m_obstacles;              ///< of results beyond the limit
    std::vector<std::pair<const SurveyPoint*, Move>> m_farthest; ///< the farthest first
};

template <class Visit>
bool Report::forEachResult(Visit visit)
{
    for (const auto& [number, line] : m_input.survey) {
        for (const SurveyPoint* const point : writtenOrder(line)) {
            if (m_input.includes(*point))
                visit(*point);
            if (!m_steps.next())
                return false;
        }
    }
    return true;
}

Outcome Report::write()
{
    Page& summary = addSummary(m_book);
    if (writeResults() && writeNotStaked() && writeMoved()) {
        addLimitsSheet(m_book, m_input, definitions());
        writeSummary(summary);
    }
    return m_steps.finish(notice());
}

bool Report::writeResults()
{
    Sheet& sheet = m_book.addSheet(
        Texts::tr("Results"), ResultCells::columns(m_input.coordParameters), {.frozenColumns = 2});
    sheet.colourAbove(ResultCells::indexOf("quality_standard"), 0, Sheet::Colour::Warning);
    ResultCells cells;
    return forEachResult([&](const SurveyPoint& point) {
        ++m_tallies[point.pointMark != 0 ? 1 : 0].results;
        cells.add(sheet, point);
    });
}

QString Report::inPlaneUnit(const QString& name) const
{
    const auto unit = lum::lengthUnitOf(m_input.coordParameters);
    return QStringLiteral("%1 (%2)").arg(name, lum::toQString(symbolOf(unit)));
}

bool Report::writeNotStaked()
{
    constexpr int kDecimals = 3;
    Sheet& sheet = m_book.addSheet(Texts::tr("Not staked"),
                                   {{Texts::tr("Line")},
                                    {Texts::tr("Point")},
                                    {Texts::tr("Kind"), Form::Code},
                                    {inPlaneUnit(Texts::tr("North")), Form::Number, kDecimals},
                                    {inPlaneUnit(Texts::tr("East")), Form::Number, kDecimals},
                                    {Texts::tr("Elevation (m)"), Form::Number, kDecimals}},
                                   {.frozenColumns = 2});
    for (const auto& [number, line] : m_input.design) {
        const auto* const results = m_input.survey.findLine(number);
        for (const DesignPoint& point : line) {
            Tally& tally = m_tallies[point.type != 0 ? 1 : 0];
            ++tally.design;
            if (results != nullptr && results->find(point.pointNumber) != nullptr)
                ++tally.staked;
            else
                sheet.text(point.lineNumber)
                    .text(point.pointNumber)
                    .text(point.type != 0 ? "R" : "S")
                    .number(point.north)
                    .number(point.east)
                    .number(point.elevation)
                    .endRow();
            if (!m_steps.next())
                return false;
        }
    }
    return true;
}

Move Report::moveOf(const SurveyPoint& point) const
{
    const double unitM = m_limits.planeUnitM;
    Move move{(point.north - point.designNorth) * unitM, (point.east - point.designEast) * unitM,
              point.elevation - point.designElevation};
    const JudgedValue judged = quality_test::kDesignHorizontal.judge(point, m_limits);
    move.distance = judged.value;
    move.isBeyond = judged.verdict != JudgedValue::Verdict::Passes;
    move.bearingDeg = bearing(move.north * m_axes.northSign(), move.east * m_axes.eastSign());
    return move;
}

void Report::keepFarthest(const SurveyPoint& point, const Move& move)
{
    const auto isFarther = [&](const auto& kept) { return move.distance > kept.second.distance; };
    const auto place = std::find_if(m_farthest.begin(), m_farthest.end(), isFarther);
    m_farthest.insert(place, {&point, move});
    if (m_farthest.size() > kFarthest)
        m_farthest.pop_back();
}

void Report::addMoveRow(Sheet& sheet, const SurveyPoint& point, const Move& move)
{
    sheet.text(point.lineNumber)
        .text(writtenPointNumber(point.pointNumber))
        .text(point.pointMark != 0 ? "R" : "S")
        .timeOrBlank(point.dateTime)
        .number(move.distance)
        .number(move.bearingDeg)
        .number(move.north)
        .number(move.east)
        .number(move.up)
        .text(point.obstacle)
        .text(point.surveyor)
        .text(point.remarks);
    for (const double value : {point.designNorth, point.designEast, point.designElevation,
                               point.north, point.east, point.elevation})
        sheet.number(value);
    sheet.endRow();
}

bool Report::writeMoved()
{
    constexpr int kDecimals = 3;
    constexpr std::size_t kDistance = 4;
    constexpr std::size_t kUp = 8;
    std::vector<SheetColumn> columns{{Texts::tr("Line")},
                                     {Texts::tr("Point")},
                                     {Texts::tr("Kind"), Form::Code},
                                     {Texts::tr("Time"), Form::Time},
                                     {Texts::tr("Distance (m)"), Form::Number, kDecimals},
                                     {Texts::tr("Bearing (%1)").arg(QChar(0xB0)), Form::Number, 2},
                                     {Texts::tr("dN (m)"), Form::Number, kDecimals},
                                     {Texts::tr("dE (m)"), Form::Number, kDecimals},
                                     {Texts::tr("dH (m)"), Form::Number, kDecimals},
                                     {Texts::tr("Obstacle")},
                                     {Texts::tr("Surveyor")},
                                     {Texts::tr("Remarks")}};
    for (const QString& name :
         {inPlaneUnit(Texts::tr("Design north")), inPlaneUnit(Texts::tr("Design east")),
          Texts::tr("Design elevation (m)"), inPlaneUnit(Texts::tr("North")),
          inPlaneUnit(Texts::tr("East")), Texts::tr("Elevation (m)")})
        columns.push_back({name, Form::Number, kDecimals});
    Sheet& sheet = m_book.addSheet(Texts::tr("Moved"), std::move(columns), {.frozenColumns = 2});
    sheet.colourAbove(kDistance, m_limits.designHorizontalM + kRoundingM);
    sheet.colourAbove(kUp, m_limits.designVerticalM + kRoundingM);
    return forEachResult([&](const SurveyPoint& point) {
        const Move move = moveOf(point);
        if (!hasDesignPosition(point) || !std::isfinite(move.distance))
            return;
        Tally& tally = m_tallies[point.pointMark != 0 ? 1 : 0];
        ++tally.compared;
        if (move.isBeyond) {
            ++tally.beyond;
            ++m_obstacles[point.obstacle];
        }
        keepFarthest(point, move);
        addMoveRow(sheet, point, move);
    });
}

void Report::writeSummary(Page& page)
{
    const Tally all = total();
    writeSummaryHead(page, findReportKind("results")->captionText(), m_input,
                     {all.compared, all.results - all.compared,
                      Texts::tr("These results have no design position, or their position is no "
                                "number.")});
    writeTallies(page);
    writeFarthest(page);
    writeObstacles(page);
}

void Report::writeTallies(Page& page)
{
    page.addChapter(Texts::tr("Points"));
    page.beginTable({{Texts::tr("Kind")},
                     {Texts::tr("Design points"), Form::Number},
                     {Texts::tr("Staked"), Form::Number},
                     {Texts::tr("Staked (%)"), Form::Percent, 1},
                     {Texts::tr("Not staked"), Form::Number},
                     {Texts::tr("Results"), Form::Number},
                     {Texts::tr("Farther than the limit"), Form::Number},
                     {Texts::tr("Farther (%)"), Form::Percent, 1}});
    const std::pair<QString, Tally> rows[] = {{Texts::tr("Receivers"), m_tallies[1]},
                                              {Texts::tr("Sources"), m_tallies[0]},
                                              {Texts::tr("All"), total()}};
    for (const auto& [kind, tally] : rows)
        page.text(kind)
            .number(double(tally.design))
            .number(double(tally.staked))
            .number(double(tally.staked) / double(tally.design))
            .number(double(tally.design - tally.staked))
            .number(double(tally.results))
            .number(double(tally.beyond))
            .number(double(tally.beyond) / double(tally.compared))
            .endRow();
    if (m_input.choice.fromMs || m_input.choice.untilMs || !m_input.choice.surveyors.isEmpty())
        page.addNote(Texts::tr("A design point counts as staked whenever and by whomever it was "
                               "staked; results are those of the period and surveyors above."));
}

void Report::writeFarthest(Page& page)
{
    if (m_farthest.empty())
        return;
    page.addChapter(Texts::tr("Farthest from the design"));
    page.beginTable({{Texts::tr("Line")},
                     {Texts::tr("Point")},
                     {Texts::tr("Distance (m)"), Form::Number, 3},
                     {Texts::tr("Bearing (%1)").arg(QChar(0xB0)), Form::Number, 2},
                     {Texts::tr("dN (m)"), Form::Number, 3},
                     {Texts::tr("dE (m)"), Form::Number, 3},
                     {Texts::tr("dH (m)"), Form::Number, 3},
                     {Texts::tr("Obstacle")}});
    for (const auto& [point, move] : m_farthest)
        page.text(point->lineNumber)
            .text(writtenPointNumber(point->pointNumber))
            .number(move.distance)
            .number(move.bearingDeg)
            .number(move.north)
            .number(move.east)
            .number(move.up)
            .text(point->obstacle)
            .endRow();
}

void Report::writeObstacles(Page& page)
{
    if (m_obstacles.empty())
        return;
    std::vector<std::pair<std::string, std::size_t>> sorted(m_obstacles.begin(), m_obstacles.end());
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    sorted.resize(std::min(sorted.size(), kFarthest));
    page.addChapter(Texts::tr("Points farther than the limit, by obstacle"));
    page.beginTable({{Texts::tr("Obstacle")}, {Texts::tr("Points"), Form::Number}});
    for (const auto& [obstacle, points] : sorted)
        page.text(obstacle.empty() ? Texts::tr("none given") : lum::toQString(obstacle))
            .number(double(points))
            .endRow();
    page.addCharts({{Chart::Kind::Bars,
                     Texts::tr("Points farther than the limit, by obstacle"),
                     {{{}, page.cells(0), page.cells(1)}}}});
}

std::vector<FigureDefinition> Report::definitions() const
{
    return {{Texts::tr("Not staked"),
             Texts::tr("Design points without a result of the same line and point number.")},
            {Texts::tr("dN, dE, dH"),
             Texts::tr("Measured minus design, in metres: to the north, to the east, upwards.")},
            {Texts::tr("Distance"),
             Texts::tr("In the plane from the design to the measured position, in metres; red when "
                       "it is above the limit design_hor_diff.")},
            {Texts::tr("Bearing"), Texts::tr("The direction from the design to the measured "
                                             "position, in degrees clockwise from grid north.")}};
}

QString Report::notice() const
{
    const Tally all = total();
    return Texts::tr("Results: %1, design points not staked: %2, farther from the design than the "
                     "limit: %3.")
        .arg(lum::groupedNumber(all.results), lum::groupedNumber(all.design - all.staked),
             lum::groupedNumber(all.beyond));
}

} // namespace

Outcome writeSurveyResults(const QString& path, const ReportInput& input)
{
    return Report(path, input).write();
}
