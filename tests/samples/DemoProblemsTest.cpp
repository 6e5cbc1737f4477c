#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/DictionaryXml.h"
#include "model/PointNumber.h"
#include "quality/EmptyPointCheck.h"
#include "quality/problems/ProblemColumns.h"
#include "quality/problems/ProblemFinders.h"
#include "quality/QualityCheck.h"
#include "quality/ResurveyCheck.h"
#include "samples/DemoLimits.h"
#include "samples/DemoSurvey.h"
#include "samples/ResultCompleter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

namespace {

using Kinds = std::set<std::string>;
using demo::DemoPlan;
using demo::DemoSurvey;
using demo::PlantedFault;

/// The rows that a kind of planted fault has in the list of problems.
struct Rows
{
    Kinds own;          ///< found for each of them
    Kinds follows = {}; ///< may follow from it
};

/// A point is missing only because its result has another name.
constexpr const char* kMisnamed = "missing: its result is named";

const std::map<std::string, Rows> kRows{
    {"missing", {{"missing"}}},
    {kMisnamed, {{}, {"wrong_name", "foreign_result"}}}, // which is a fault of its own
    {"skid", {{"too_far"}, {"across", "along"}}},
    {"too far", {{"too_far"}, {"across", "along"}}},
    {"hrms", {{"hrms", "rms", "solution_type"}}},
    {"vrms", {{"vrms", "rms", "solution_type"}}},
    {"hrms and vrms", {{"hrms", "vrms", "rms", "solution_type"}}},
    {"antenna high", {{"antenna_high"}}},
    {"antenna low", {{"antenna_low"}}},
    {"pdop", {{"pdop"}}},
    {"pdop and vdop", {{"pdop", "vdop"}}},
    {"pdop hdop and vdop", {{"pdop", "hdop", "vdop"}}},
    {"few satellites", {{"satellites"}}},
    {"reference too far", {{"base_far"}}},
    {"not fixed", {{"solution_type"}}},
    {"rms", {{"rms", "solution_type"}}},
    {"old corrections", {{"age_of_diff"}}},
    {"few epochs", {{"epoch_num"}}},
    {"short occupation", {{"occupation"}}},
    {"height off", {{"neighbour_height"}}},
    {"height jump", {{"height_jump", "neighbour_height", "height_off"}}},
    {"no design position", {{"no_design"}}},
    {"resurvey good", {}},
    {"resurvey bad", {{"resurvey_off"}}},
    {"resurvey orphan", {{"resurvey_alone", "wrong_name"}, {"coincident"}}},
    {"repeat", {{"repeat"}}},
    {"repeat bad", {{"repeat_off"}}},
    {"wrong name", {{"wrong_name"}, {"too_far", "across", "along"}}},
    {"exchanged names", {{"swapped_names"}, {"too_far", "across", "along"}}},
    {"unknown name", {{"foreign_result"}}},
    {"design spacing", {{"line_spacing"}}},
    {"design spike", {{"azimuth_spike"}}},
    {"design azimuth", {{"azimuth_spike"}}},
    {"design order", {{"reversed_order"}}},
    {"design in one place", {{"coincident", "line_spacing"}}},
    {"design height", {{"height_jump", "height_off"}}},
    {"design numbers", {{"number_gap"}}},
    {"design lines", {{"interleaved"}}},
    {"base height", {{"base_shift"}}},
    {"pole height", {{"pole_shift"}}},
    {"few check shots", {{"few_check_shots"}}},
};

const Rows& rowsOf(const PlantedFault& fault)
{
    const std::string text = fault.kind + ": " + fault.what;
    return kRows.at(text.starts_with(kMisnamed) ? kMisnamed : fault.kind);
}

DemoSurvey made(std::uint64_t seed, DemoPlan plan = {})
{
    ICoordTransform& transform = get_project_coord_transform();
    EXPECT_EQ(demo::useSurveySystem(transform), QString());
    return makeDemoSurvey(seed, transform, std::move(plan));
}

basalt::Dictionary limitsOfNewProject()
{
    basalt::Dictionary parameters;
    EXPECT_TRUE(xml_to_dictionary(QUALITY_PARAMETERS, parameters));
    return parameters;
}

basalt::Dictionary limitsOfDemo()
{
    basalt::Dictionary parameters = limitsOfNewProject();
    for (const demo::DemoLimit& limit : demo::demoLimits())
        parameters.set(limit.key, limit.value);
    return parameters;
}

/// All problems, after all checks.
ProblemList problemsOf(DemoSurvey& demo, const basalt::Dictionary& parameters)
{
    ProgressReporter nobody(nullptr);
    checkQuality(demo.survey, parameters, nobody);
    checkEmptyPoints(demo.design, demo.survey, nobody);
    checkResurveys(demo.survey, parameters, nobody);
    return findProblems({demo.design, demo.survey, parameters, 1, basalt::LocalTimes(0)}, nobody);
}

std::string placeText(std::string_view line, std::string_view point)
{
    return std::string(line) + '/' + std::string(writtenPointNumber(point));
}

/// The point that a resurvey or a check point measures again.
std::string pointOf(std::string_view number)
{
    number = writtenPointNumber(number);
    return std::string(number.substr(number.starts_with('C') ? 1 : 0, number.find('F')));
}

/// Kind, places, sentence, surveyor and day.
std::string textOf(const Problem& problem)
{
    basalt::LocalTimes zone(0);
    const QString day =
        problemColumns()[static_cast<std::size_t>(ProblemField::Day)].forScripts(problem, zone);
    return problem.kind->name + (' ' + placeText(problem.line, problem.point)) + ' ' +
           problem.kind->what(problem).toStdString() + ' ' + std::string(problem.surveyor) +
           " on " + day.toStdString();
}

/// Compares planted faults with the rows of the list.
class Comparison
{
public:
    Comparison(const DemoSurvey& demo, const ProblemList& problems) : m_demo(demo)
    {
        for (const PlantedFault& fault : demo.faults)
            m_faults[keyOf(fault)].push_back(&fault);
        for (const Problem& problem : problems) {
            if (!explain(problem))
                m_unexplained.push_back(textOf(problem));
        }
    }

    /// Of the planted faults that a row has to tell, those that none tells.
    [[nodiscard]] std::vector<std::string> notFound() const
    {
        std::vector<std::string> texts;
        for (const PlantedFault& fault : m_demo.faults) {
            for (const std::string& kind : rowsOf(fault).own) {
                const auto found = m_told.find(&fault);
                if (found == m_told.end() || found->second.count(kind) == 0)
                    texts.push_back(fault.kind + ' ' + placeText(fault.line, fault.point) + ' ' +
                                    fault.what + ", not told as " + kind);
            }
        }
        return texts;
    }
    [[nodiscard]] const std::vector<std::string>& unexplained() const { return m_unexplained; }

    void expectEqual(const char* name, std::size_t rows) const
    {
        const std::vector<std::string> lost = notFound();
        std::printf("%s: planted %zu, not found %zu; rows %zu, unexplained %zu\n", name,
                    m_demo.faults.size(), lost.size(), rows, m_unexplained.size());
        EXPECT_EQ(lost, std::vector<std::string>());
        EXPECT_EQ(m_unexplained, std::vector<std::string>());
    }

private:
    static std::string keyOf(const PlantedFault& fault)
    {
        return fault.line.empty() ? std::string() : placeText(fault.line, fault.point);
    }

    /// Finds the faults that a row tells, or that it follows from.
    bool explain(const Problem& problem)
    {
        bool isExplained = false;
        std::set<std::string> keys{
            placeText(problem.line, problem.point), placeText(problem.line, pointOf(problem.point)),
            placeText(problem.otherLine, problem.otherPoint), placeText(problem.otherLine, {})};
        if (problem.point.empty())
            keys = {std::string()};
        for (const std::string& key : keys) {
            for (const PlantedFault* const fault : m_faults[key]) {
                const Rows& rows = rowsOf(*fault);
                const bool isOwn = rows.own.count(problem.kind->name) != 0;
                if ((!isOwn && rows.follows.count(problem.kind->name) == 0) ||
                    (key.empty() && !tells(problem, *fault)))
                    continue;
                isExplained = true;
                if (isOwn)
                    m_told[fault].insert(problem.kind->name);
            }
        }
        return isExplained;
    }
    /// Whether the row of a group names "BASE01 on 2025/05/12".
    static bool tells(const Problem& problem, const PlantedFault& fault)
    {
        return textOf(problem).find(fault.what.substr(0, fault.what.find(':'))) !=
               std::string::npos;
    }

    const DemoSurvey& m_demo;
    std::map<std::string, std::vector<const PlantedFault*>> m_faults;
    std::map<const PlantedFault*, Kinds> m_told;
    std::vector<std::string> m_unexplained;
};

Kinds kindsIn(const ProblemList& problems)
{
    Kinds kinds;
    for (const Problem& problem : problems)
        kinds.insert(problem.kind->name);
    return kinds;
}

// --- surveys without faults ---

/// Bends the lines of the design.
std::vector<DesignPoint> crookedGrid()
{
    std::vector<DesignPoint> design = demo::designGrid();
    for (DesignPoint& point : design) {
        const demo::LocalPlace place = demo::toGrid({point.north, point.east});
        const demo::PlanePlace bent =
            demo::toPlane({place.x + 70 * std::sin(place.y / 500 + place.x / 900),
                           place.y + 160 * std::sin(place.x / 600)});
        point.north = bent.north;
        point.east = bent.east;
    }
    return design;
}

/// One road with bends, receivers and sources on it, and no heights.
std::vector<DesignPoint> roadInTwoDimensions()
{
    std::vector<DesignPoint> design;
    for (const int type : {demo::kReceiver, demo::kSource}) {
        demo::LocalPlace place{type == demo::kReceiver ? 0.0 : 12.5, 900};
        for (int i = 0; i < 280; ++i) {
            const double bend = 0.9 * std::sin(place.x / 300) + 0.5 * std::sin(place.x / 90);
            place = {place.x + 25 * std::cos(bend), place.y + 25 * std::sin(bend)};
            const demo::PlanePlace plane = demo::toPlane(place);
            DesignPoint point;
            point.lineNumber = type == demo::kReceiver ? "1" : "2";
            point.pointNumber = point.lineNumber + std::to_string(1001 + i);
            point.north = plane.north;
            point.east = plane.east;
            point.type = type;
            design.push_back(std::move(point));
        }
    }
    return design;
}

struct CleanCase
{
    const char* name;
    std::vector<DesignPoint> (*design)();
    bool hasObstacles;
};

class CleanDemo : public testing::TestWithParam<CleanCase>
{
};

} // namespace

TEST(DemoProblems, EveryPlantedFaultIsFoundAndEveryRowIsExplained)
{
    for (std::uint64_t seed = 1; seed <= 8; ++seed) {
        SCOPED_TRACE(seed);
        DemoSurvey demo = made(seed);
        const ProblemList problems = problemsOf(demo, limitsOfDemo());
        Comparison(demo, problems)
            .expectEqual(("seed " + std::to_string(seed)).c_str(), problems.size());

        Kinds notPlanted{"no_position",      // a file of results always tells where they are
                         "survey_shift",     // of which nothing else would be left
                         "base_difference"}; // a list that is off
        for (const std::string& kind : kindsIn(problems))
            EXPECT_EQ(notPlanted.count(kind), 0U) << kind;
        for (const ProblemKind* const kind : problemKinds())
            EXPECT_EQ(kindsIn(problems).count(kind->name) + notPlanted.count(kind->name), 1U)
                << kind->name;
    }
}

TEST(DemoProblems, AnOffsetOfAllResultsIsOneProblem)
{
    DemoSurvey demo = made(1, {demo::designGrid(), false, false});
    for (auto& [number, line] : demo.survey) {
        for (SurveyPoint& point : line)
            point.elevation += 25;
    }
    const ProblemList problems = problemsOf(demo, limitsOfDemo());
    EXPECT_EQ(kindsIn(problems), Kinds{"survey_shift"});
    EXPECT_EQ(problems.size(), 1U);
}

TEST_P(CleanDemo, HasNoProblemButItsSkids)
{
    const CleanCase& clean = GetParam();
    for (const std::uint64_t seed : {1U, 2U}) {
        DemoSurvey demo = made(seed, {clean.design(), clean.hasObstacles, false});
        basalt::Dictionary limits = limitsOfDemo();
        limits.set("design_ver_diff", "1000"); // the design may have no heights
        const ProblemList problems = problemsOf(demo, limits);
        Comparison(demo, problems).expectEqual(clean.name, problems.size());
        Kinds kinds = kindsIn(problems);
        if (clean.hasObstacles) {
            for (const char* const kind : {"too_far", "across", "along", "missing"})
                kinds.erase(kind);
        }
        EXPECT_EQ(kinds, Kinds());
    }
}

INSTANTIATE_TEST_SUITE_P(Surveys, CleanDemo,
                         testing::Values(CleanCase{"Grid", demo::designGrid, false},
                                         CleanCase{"Skids", demo::designGrid, true},
                                         CleanCase{"Crooked", crookedGrid, false},
                                         CleanCase{"CrookedWithSkids", crookedGrid, true},
                                         CleanCase{"TwoDimensions", roadInTwoDimensions, false},
                                         CleanCase{"TwoDimensionsWithSkids", roadInTwoDimensions,
                                                   true}),
                         [](const auto& test) { return test.param.name; });

// --- data that can hardly be ---

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct BadCase
{
    const char* name;
    void (*spoil)(DemoSurvey& demo);
    Kinds mayBe = {};       ///< the kinds of its problems
    std::size_t atMost = 0; ///< problems
};

template <class Points, class Change>
void changeAll(Points& points, Change change)
{
    Points changed;
    for (const auto& [number, line] : points) {
        for (auto point : line) {
            change(point);
            changed.set(std::move(point));
        }
    }
    points = std::move(changed);
}

template <std::int64_t timeMs>
void setTimes(DemoSurvey& demo)
{
    changeAll(demo.survey, [](SurveyPoint& point) {
        point.dateTime = point.startTime = point.endTime = timeMs;
    });
}

template <class Points>
void keepOne(Points& points)
{
    Points one;
    one.set(*points.begin()->second.begin());
    points = std::move(one);
}

std::string withoutLetter(const std::string& number)
{
    return number.substr(0, number.find('F'));
}

const BadCase kBadCases[] = {
    {"Nothing",
     [](DemoSurvey& demo) {
         demo.design.clear();
         demo.survey.clear();
     }},
    {"NoDesign", [](DemoSurvey& demo) { demo.design.clear(); }},
    {"NoSurvey", [](DemoSurvey& demo) { demo.survey.clear(); }, {"missing"}, 4000},
    {"NoTimes", setTimes<0>},
    {"EqualTimes", setTimes<1747000000000>},
    {"NoCrewsAndBases",
     [](DemoSurvey& demo) {
         changeAll(demo.survey, [](SurveyPoint& point) {
             point.surveyor = point.instrumentSerialNumber = point.baseStationId = std::string();
         });
     }},
    {"OnePoint",
     [](DemoSurvey& demo) {
         keepOne(demo.design);
         keepOne(demo.survey);
     },
     {"few_check_shots"},
     1},
    {"OnePlace",
     [](DemoSurvey& demo) {
         changeAll(demo.design, [](DesignPoint& point) {
             point.north = 4560000;
             point.east = 509000;
         });
         changeAll(demo.survey, [](SurveyPoint& point) {
             point.north = point.designNorth = 4560000;
             point.east = point.designEast = 509000;
         });
     },
     {"coincident"},
     40},
    {"LinesOfOnePoint",
     [](DemoSurvey& demo) {
         changeAll(demo.design, [](DesignPoint& point) { point.lineNumber = point.pointNumber; });
         changeAll(demo.survey,
                   [](SurveyPoint& point) { point.lineNumber = withoutLetter(point.pointNumber); });
     }},
    {"NoPositions",
     [](DemoSurvey& demo) {
         changeAll(demo.survey, [](SurveyPoint& point) {
             point.north = point.east = point.elevation = point.latitude = kNaN;
             point.transversalDeviation = point.longitudinalDeviation = kNaN;
         });
     },
     {"no_position"},
     4200},
    {"SomePositions",
     [](DemoSurvey& demo) {
         changeAll(demo.survey, [](SurveyPoint& point) {
             if (point.pointNumber.back() == '7')
                 point.north = kNaN;
             if (point.pointNumber.back() == '3')
                 point.elevation = HUGE_VAL;
         });
     },
     {"no_position", "height_off", "resurvey_off"},
     1250},
    {"DesignWithoutPositions",
     [](DemoSurvey& demo) {
         changeAll(demo.design, [](DesignPoint& point) {
             point.north = point.elevation = kNaN;
             point.azimuth = -HUGE_VAL;
         });
     }},
};

class BadDemo : public testing::TestWithParam<BadCase>
{
};

} // namespace

TEST_P(BadDemo, HasNoProblemThatMakesNoSense)
{
    static const DemoSurvey kClean = made(1, {demo::designGrid(), false, false});
    DemoSurvey demo;
    demo.design = kClean.design;
    demo.survey = kClean.survey;
    GetParam().spoil(demo);
    const ProblemList problems = problemsOf(demo, limitsOfNewProject());
    EXPECT_LE(problems.size(), GetParam().atMost);
    for (const Problem& problem : problems) {
        const std::string text = textOf(problem);
        EXPECT_EQ(GetParam().mayBe.count(problem.kind->name), 1U) << text;
        EXPECT_EQ(text.find("nan"), std::string::npos) << text;
        EXPECT_EQ(text.find('%'), std::string::npos) << text;
        if (testing::Test::HasFailure())
            break;
    }
}

INSTANTIATE_TEST_SUITE_P(Surveys, BadDemo, testing::ValuesIn(kBadCases),
                         [](const auto& test) { return test.param.name; });
