#include "basalt_utilities/KeyList.h"
#include "design/DesignFields.h"
#include "design/DesignGenerator.h"
#include "model/PointNumber.h"
#include "project/ParameterFiles.h"
#include "tests/project/PlainProject.h"
#include "tests/project/SavedProject.h"

#include <random>

namespace {

using Row = PlainProject::Row;
using Named = PlainProject::Named;

basalt::Dictionary systemOf(const std::string& meridian)
{
    basalt::Dictionary system;
    csa_to_dictionary(system, "ellipsoid_a=6378137,ellipsoid_f=298.257223563,project_type=2,"
                              "factor=0.9996,false_east=500000,coord_param_id=UTM");
    system.set("org_lon", meridian);
    return system;
}

std::map<std::string, std::string> textsOf(const IDictionary& dictionary)
{
    std::map<std::string, std::string> texts;
    for (std::size_t i = 0; i < dictionary.size(); ++i)
        texts.emplace(dictionary.keyAt(i), dictionary.valueAt(i));
    return texts;
}

/// What the program holds, as a plain project.
PlainProject textsOf(DataProcessDataManager& manager)
{
    PlainProject plain;
    const auto text = PlainProject::text;
    for (const auto& [number, line] : manager.designPoints()) {
        for (const DesignPoint& point : line)
            plain.design[number][point.pointNumber] = {
                text(point.north, 4), text(point.east, 4), text(point.elevation, 4),
                text(point.azimuth, 6), std::to_string(point.type)};
    }
    for (const auto& [number, line] : manager.surveyPoints()) {
        for (const SurveyPoint& point : line)
            plain.results[number][point.pointNumber] = {point.pointMark == 0 ? "S" : "R",
                                                        text(point.altitude, 4),
                                                        text(point.north, 4),
                                                        text(point.elevation, 4),
                                                        text(point.antennaHeight, 4),
                                                        point.surveyor,
                                                        point.remarks};
    }
    plain.quality = textsOf(manager.qualityParameters());
    plain.designParameters = textsOf(manager.designParameters());
    for (const Acceptance& acceptance : manager.acceptances())
        plain.accepted[acceptance.kind + acceptance.name.point] = acceptance.reason.toStdString();
    plain.coordSystem = get_project_coord_transform().parameters().text("org_lon");
    return plain;
}

QByteArray resultsCsv(const std::vector<Named>& rows)
{
    std::string csv = "line num,point num,point mark,altitude,north,elevation,antenna height,"
                      "surveyor,remarks\n";
    for (const auto& [line, number, row] : rows) {
        csv += line + ',' + number;
        for (const std::string& field : row)
            csv += ',' + field;
        csv += '\n';
    }
    return QByteArray::fromStdString(csv);
}

QByteArray designCsv(const PlainProject::Points& points)
{
    std::string csv;
    for (const auto& [line, numbers] : points) {
        for (const auto& [number, row] : numbers) {
            csv += number + ',' + line;
            for (const std::string& field : row)
                csv += ',' + field;
            csv += ",0\n";
        }
    }
    return QByteArray::fromStdString(csv);
}

/// Random operations of the program beside a plain project. The edits are kept as a window would
/// keep them, each with the state before it.
class RandomEdits : public testing::Test
{
protected:
    RandomEdits()
    {
        create(m_place);
        m_template = basalt::Dictionary(m_manager.designParameters());
        basalt::Dictionary all; // every save makes them the template, which other tests read
        for (const DesignParameter& parameter : designParameters())
            all.set(parameter.key, parameter.fallback);
        m_manager.setDesignParameters(all);
        m_manager.setEditHandler([this](const std::shared_ptr<Edit>& edit) {
            m_edits.resize(m_done);
            m_edits.push_back(edit);
        });
        m_manager.setCoordSystem(systemOf("117"));
        save();
        reload();
    }

    ~RandomEdits() override { ParameterFiles::writeTemplate(m_template); }

    void create(const ProjectPlace& place)
    {
        makeProject(place);
        expectDone(m_manager.openProject(place));
    }

    // --- what is random ---

    unsigned below(unsigned count) { return unsigned(m_random()) % count; }
    std::string line()
    {
        static const std::vector<std::string> lines{"10", "9", "R1", "L 4", "线", "1001"};
        return lines[below(6)];
    }
    std::string number()
    {
        if (below(8) == 0)
            return "C1001200" + std::to_string(below(3));
        return std::to_string(below(below(2) == 0 ? 40 : 400));
    }
    std::string height() { return PlainProject::text(int(below(4000)) / 4.0 - 500); }
    Row result()
    {
        return {below(2) == 0 ? "S" : "R",
                height(),
                height(),
                height(),
                PlainProject::text(below(20) / 4.0),
                below(3) == 0 ? "张三" : "Zhang",
                below(2) == 0 ? "" : "remark " + std::to_string(below(9))};
    }
    /// Mostly of a result that is there.
    std::pair<std::string, std::string> name()
    {
        const PlainProject::Points& results = present().results;
        if (results.empty() || below(10) == 0)
            return {line(), number()};
        const auto& [number, points] = *std::next(results.begin(), below(unsigned(results.size())));
        return {number, std::next(points.begin(), below(unsigned(points.size())))->first};
    }

    // --- operations: each changes `next` as the program has to change its data, and answers
    // whether there has to be an edit ---

    bool importResults(PlainProject& next)
    {
        std::vector<Named> rows;
        for (unsigned i = below(20) == 0 ? 300 : below(12); i > 0; --i)
            rows.push_back({below(15) == 0 ? "" : line(), number(), result()});
        next.import(rows);
        EXPECT_EQ(m_manager.importSurveyCsv(m_folder.write("s.csv", resultsCsv(rows))), 1);
        return !rows.empty();
    }
    bool importDatabase(PlainProject& next)
    {
        const QString path = m_folder.path("theirs.db");
        QFile::remove(path);
        EXPECT_TRUE(makeDatabase(path.toStdString()));
        PlainProject other;
        for (unsigned i = 1 + below(12); i > 0; --i)
            other.import(
                {{line(), number(), {"R", height(), height(), height(), "0.0000", "", ""}}});
        TestProject theirs;
        dictionary_copy(get_project_coord_transform().parameters(), theirs.coordParameters);
        for (const auto& [line, number, row] : other.written()) {
            SurveyPoint point = surveyPoint(line, number);
            point.pointMark = 1;
            point.altitude = std::stod(row[PlainProject::Altitude]);
            point.north = std::stod(row[PlainProject::North]);
            point.elevation = std::stod(row[PlainProject::Elevation]);
            SurveyPointFiler(theirs.survey).file(std::move(point));
        }
        expectDone(theirs.save(path.toStdString()));
        next.import(other.written());
        EXPECT_EQ(m_manager.importSurveyDatabase(path), 1);
        for (const auto& [number, line] : m_manager.surveyPoints()) {
            for (const SurveyPoint& point : line)
                EXPECT_EQ(point.seaHeight, point.elevation); // a database does not hold it
        }
        return true;
    }
    bool deletePoints(PlainProject& next)
    {
        std::vector<PointName> names;
        std::size_t gone = 0;
        for (unsigned i = below(12); i > 0; --i) {
            const auto [line, number] = name();
            names.push_back({line, number});
            gone += next.erase(line, number) ? 1U : 0U;
        }
        EXPECT_EQ(m_manager.deleteSurveyPoints(names), gone);
        return gone != 0;
    }
    bool deleteLines(PlainProject& next)
    {
        QStringList lines;
        std::size_t gone = 0;
        for (unsigned i = 1 + below(2); i > 0; --i) {
            const std::string number = line();
            lines << QString::fromStdString(number);
            gone += next.results[number].size();
            next.results.erase(number);
        }
        EXPECT_EQ(m_manager.deleteSurveyLines(lines), gone);
        return gone != 0;
    }
    bool correctResult(PlainProject& next)
    {
        const auto [line, number] = name();
        SurveyCorrection correction;
        Named changed{line, number, {}};
        const bool isThere = next.results.contains(line) && next.results[line].contains(number);
        if (isThere)
            changed.row = next.results[line][number];
        else
            changed.row = result();
        if (below(3) == 0)
            correction.lineNumber = changed.line = this->line();
        if (below(3) == 0)
            correction.pointNumber = changed.number = this->number();
        if (below(3) == 0)
            correction.remarks = changed.row[PlainProject::Remarks] = "corrected";
        if (below(3) == 0)
            changeAntenna(correction, changed.row);
        EXPECT_EQ(m_manager.correctSurveyPoint({line, number}, correction), isThere ? 1 : 0);
        if (!isThere) {
            std::erase_if(next.results, [](const auto& each) { return each.second.empty(); });
            return false;
        }
        return next.correct({line, number, {}}, changed);
    }
    void changeAntenna(SurveyCorrection& correction, Row& row)
    {
        const double before = std::stod(row[PlainProject::Antenna]);
        correction.antennaHeightM = below(20) / 4.0;
        correction.movesHeights = below(2) == 0;
        row[PlainProject::Antenna] = PlainProject::text(*correction.antennaHeightM);
        for (const auto field : {PlainProject::Altitude, PlainProject::Elevation}) {
            if (correction.movesHeights)
                row[field] = PlainProject::text(std::stod(row[field]) -
                                                (*correction.antennaHeightM - before));
        }
    }
    bool importDesign(PlainProject& next)
    {
        PlainProject::Points points;
        for (unsigned i = below(30); i > 0; --i)
            points[line()][number()] = {height(), height(), height(), "12.500000", "1"};
        for (const auto& [line, numbers] : points) {
            for (const auto& [number, row] : numbers)
                next.design[line][number] = row;
        }
        EXPECT_EQ(m_manager.importDesignCsv(m_folder.write("d.csv", designCsv(points))), 1);
        return !points.empty();
    }
    bool correctDesign(PlainProject& next)
    {
        if (next.design.empty())
            return false;
        auto& [line, points] = *std::next(next.design.begin(), below(unsigned(next.design.size())));
        auto& [number, row] = *std::next(points.begin(), below(unsigned(points.size())));
        const Row before = row;
        DesignCorrection correction;
        correction.elevationM = below(4);
        row[2] = PlainProject::text(*correction.elevationM);
        EXPECT_EQ(m_manager.correctDesignPoint({line, number}, correction), 1);
        return row != before;
    }
    bool generate(PlainProject& next)
    {
        const auto kind = DesignLines(below(3));
        basalt::Dictionary parameters(m_manager.designParameters());
        next.design.clear();
        for (const char* const grid : {"r", "s"}) {
            const int lines = 1 + int(below(10));
            const int points = 1 + int(below(20));
            const int north = int(below(5000));
            const auto set = [&](const std::string& key, int value) {
                parameters.set(key, std::to_string(value));
            };
            const std::string prefix(grid);
            set(prefix + "_line_end_num", lines * 10 - 10);
            set(prefix + "_pt_end_num", points * 10 - 10);
            set("calc_" + prefix + "_start_north", north);
            set("calc_" + prefix + "_start_east", 700);
            const bool isReceiver = *grid == 'r';
            if (kind != (isReceiver ? DesignLines::Source : DesignLines::Receiver))
                next.generate({lines, points, double(north), 700,
                               parameters.number(prefix + "_line_dist", 15),
                               isReceiver ? "1" : "0"});
        }
        next.designParameters = textsOf(parameters);
        EXPECT_EQ(m_manager.generateDesign(kind, parameters), 1);
        return true;
    }
    bool setParameters(PlainProject& next)
    {
        const bool isQuality = below(2) == 0;
        basalt::Dictionary parameters(isQuality ? m_manager.qualityParameters()
                                                : m_manager.designParameters());
        parameters.set(isQuality ? "hor_accu_max" : "r_line_dist", std::to_string(1 + below(3)));
        auto& texts = isQuality ? next.quality : next.designParameters;
        const bool isChanged = texts != textsOf(parameters);
        texts = textsOf(parameters);
        if (isQuality)
            m_manager.setQualityParameters(parameters);
        else
            m_manager.setDesignParameters(parameters);
        return isChanged;
    }
    static Acceptance problemOf(const std::string& point)
    {
        return {"too_far", point.size() == 1, {"10", point}, "of " + point, {}, {}, {}};
    }
    bool accept(PlainProject& next)
    {
        std::vector<Acceptance> problems;
        std::size_t changed = 0;
        for (unsigned first = below(9), i = first + below(4); i > first; --i) {
            Acceptance problem = problemOf(std::to_string(i));
            problem.reason = QString::number(below(3));
            std::string& reason = next.accepted[problem.kind + problem.name.point];
            changed += reason == problem.reason.toStdString() ? 0U : 1U;
            reason = problem.reason.toStdString();
            problems.push_back(problem);
        }
        EXPECT_EQ(m_manager.accept(problems), changed);
        return changed != 0;
    }
    bool endAcceptances(PlainProject& next)
    {
        std::vector<Acceptance> problems;
        std::size_t ended = 0;
        for (unsigned i = below(4); i > 0; --i) {
            problems.push_back(problemOf(std::to_string(below(12))));
            ended += next.accepted.erase(problems.back().kind + problems.back().name.point);
        }
        EXPECT_EQ(m_manager.endAcceptances(problems), ended);
        return ended != 0;
    }
    bool setCoordSystem(PlainProject& next)
    {
        next.coordSystem = next.coordSystem == "117" ? "123" : "117";
        m_manager.setCoordSystem(systemOf(next.coordSystem));
        return true;
    }

    /// One of them. Only the last states are kept.
    void change()
    {
        using Operation = bool (RandomEdits::*)(PlainProject&);
        static constexpr Operation kOperations[] = {
            &RandomEdits::importResults, &RandomEdits::importResults,  &RandomEdits::deletePoints,
            &RandomEdits::deletePoints,  &RandomEdits::correctResult,  &RandomEdits::correctResult,
            &RandomEdits::correctResult, &RandomEdits::correctResult,  &RandomEdits::importDesign,
            &RandomEdits::correctDesign, &RandomEdits::setParameters,  &RandomEdits::deleteLines,
            &RandomEdits::generate,      &RandomEdits::setCoordSystem, &RandomEdits::accept,
            &RandomEdits::accept,        &RandomEdits::endAcceptances};
        const Operation operation = below(40) == 0
                                        ? &RandomEdits::importDatabase
                                        : kOperations[below(unsigned(std::size(kOperations)))];
        PlainProject next = present();
        const bool isEdit = (this->*operation)(next);
        if (!isEdit) {
            EXPECT_EQ(next, present());
            return;
        }
        if (m_savedAt > int(m_done))
            m_savedAt = -1; // what was taken back cannot be done again
        ++m_done;
        ASSERT_EQ(m_edits.size(), m_done);
        m_states.resize(m_done);
        m_states.push_back(std::move(next));
        if (m_done > 40) {
            m_edits.erase(m_edits.begin());
            m_states.erase(m_states.begin());
            --m_done;
            m_savedAt = std::max(m_savedAt - 1, -1);
        }
    }
    void goBack()
    {
        for (unsigned i = 1 + below(5); i > 0 && m_done > 0; --i)
            ASSERT_EQ(m_manager.exchange(m_edits[--m_done], true), 1);
    }
    void goForth()
    {
        for (unsigned i = 1 + below(5); i > 0 && m_done < m_edits.size(); --i)
            ASSERT_EQ(m_manager.exchange(m_edits[m_done++], false), 1);
    }
    void check()
    {
        if (below(2) == 0)
            m_manager.checkQuality();
        else
            m_manager.checkEmptyPoints();
        m_isChecked = true;
    }
    void save()
    {
        expectDone(m_manager.saveProject(m_place));
        if (m_states.empty()) // at the beginning
            m_states.push_back(textsOf(m_manager));
        m_saved = present();
        m_savedAt = int(m_done);
        m_isChecked = false;
    }
    /// Closes without saving, and opens.
    void reload()
    {
        m_manager.clear();
        expectDone(m_manager.openProject(m_place));
        m_edits.clear();
        m_done = 0;
        m_states = {m_saved.reread()};
        m_savedAt = 0;
        m_isChecked = false;
    }

    [[nodiscard]] const PlainProject& present() const { return m_states[m_done]; }
    void expectSame()
    {
        m_most = std::max(m_most, m_manager.surveyPoints().pointCount());
        const PlainProject held = textsOf(m_manager);
        ASSERT_EQ(held.results, present().results);
        ASSERT_EQ(held.design, present().design);
        ASSERT_TRUE(held == present()) << "parameters";
        if (!m_isChecked) { // a check may change something and may not
            ASSERT_EQ(m_manager.isChanged(), m_savedAt != int(m_done));
        }
    }

    /// All checks, a save, and what is in the files then.
    std::string bytes(const ProjectPlace& place)
    {
        m_manager.checkQuality();
        m_manager.checkEmptyPoints();
        m_manager.checkResurveys();
        expectDone(m_manager.saveProject(place));
        std::string all;
        for (const char* table :
             {"SurveyLineItem", "ExplorationResultItem", "CoordinateSystemItem",
              "(select kind, is_design, line_num, point_num, fingerprint, reason from "
              "ProblemAcceptance)"})
            all += rowsOf(place.database().toStdString(), table);
        for (const char* file : {"/qc_param.ini", "/design_param.ini"})
            all += TestFolder::read(place.folder + QString::fromUtf8(file)).toStdString();
        return all;
    }
    /// Makes the open project from a plain one.
    /// \param quality,design  parameters with the keys in the order of the files
    void make(const PlainProject& plain, const IDictionary& quality, const IDictionary& design)
    {
        EXPECT_EQ(m_manager.importSurveyCsv(m_folder.write("s.csv", resultsCsv(plain.written()))),
                  1);
        EXPECT_EQ(m_manager.importDesignCsv(m_folder.write("d.csv", designCsv(plain.design))), 1);
        const auto ordered = [](const IDictionary& order, const auto& texts) {
            EXPECT_EQ(order.size(), texts.size());
            basalt::Dictionary all;
            for (std::size_t i = 0; i < order.size(); ++i)
                all.set(order.keyAt(i), texts.at(std::string(order.keyAt(i))));
            return all;
        };
        m_manager.setQualityParameters(ordered(quality, plain.quality));
        m_manager.setDesignParameters(ordered(design, plain.designParameters));
        m_manager.setCoordSystem(systemOf(plain.coordSystem));
        for (const auto& [name, reason] : plain.accepted) {
            Acceptance problem = problemOf(name.substr(std::string("too_far").size()));
            problem.reason = QString::fromStdString(reason);
            m_manager.accept({problem});
        }
    }

    TestFolder m_folder;
    basalt::Dictionary m_template; ///< of the design parameters of new projects
    ProjectPlace m_place = ProjectPlace::planned(m_folder.path(), "walk"_q);
    Host m_host;
    DataProcessDataManager m_manager{&m_host};
    std::vector<std::shared_ptr<Edit>> m_edits;
    std::size_t m_done = 0;             ///< edits that are not taken back
    std::vector<PlainProject> m_states; ///< one more than edits
    PlainProject m_saved;
    int m_savedAt = 0; ///< edits done when it was saved; -1 when that state cannot be reached
    bool m_isChecked = false;
    std::size_t m_most = 0; ///< results at a time
    std::mt19937 m_random{20240531};
};

} // namespace

// EDITS=100000 project_test --gtest_filter=RandomEdits* goes on for longer.
TEST_F(RandomEdits, EndsWithTheBytesOfAPlainModel)
{
    const int steps =
        qEnvironmentVariableIsSet("EDITS") ? qEnvironmentVariableIntValue("EDITS") : 2000;
    for (int step = 0; step < steps && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        const unsigned way = below(100);
        if (way < 60)
            change();
        else if (way < 78)
            goBack();
        else if (way < 92)
            goForth();
        else if (way < 97)
            check();
        else if (way < 99)
            save();
        else
            reload();
        if (step % 8 == 0)
            expectSame();
    }
    ASSERT_FALSE(HasFailure());
    expectSame();
    const std::string walked = bytes(m_place);
    const PlainProject plain = present();
    const basalt::Dictionary quality(m_manager.qualityParameters());
    const basalt::Dictionary design(m_manager.designParameters());
    m_manager.clear();
    const ProjectPlace fresh = ProjectPlace::planned(m_folder.path(), "plain"_q);
    create(fresh);
    make(plain, quality, design);
    EXPECT_EQ(bytes(fresh), walked);
    EXPECT_GT(m_most, 200U) << "a walk without results shows nothing";
}
