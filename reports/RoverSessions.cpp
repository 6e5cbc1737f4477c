#include "reports/RoverSessions.h"

#include "exchange/workbook/Workbook.h"
#include "model/CodeTables.h"
#include "reports/ReportSteps.h"
#include "reports/RoverWords.h"

#include <QCoreApplication>

namespace {

using Form = SheetColumn::Form;
using statistics::Average;
using statistics::KeyValue;
using statistics::RoverSession;

constexpr int kFixed = 4;
constexpr double kKilometre = 1000;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RoverReport)
};

/// The solution types that the sessions have, a column each. Different codes may have one name.
class SolutionColumns
{
public:
    explicit SolutionColumns(const std::vector<RoverSession>& sessions)
    {
        for (const RoverSession& session : sessions) {
            for (const auto& [code, results] : session.solutions)
                m_columnOf[code] = 0;
        }
        for (auto& [code, column] : m_columnOf) {
            const QString name = solutionTypeText(code);
            if (!m_names.contains(name))
                m_names << name;
            column = static_cast<std::size_t>(m_names.indexOf(name));
        }
    }

    [[nodiscard]] const QStringList& names() const { return m_names; }
    void write(Sheet& sheet, const RoverSession& session) const
    {
        std::vector<std::size_t> counts(static_cast<std::size_t>(m_names.size()));
        for (const auto& [code, results] : session.solutions)
            counts[m_columnOf.at(code)] += results;
        for (const std::size_t count : counts)
            sheet.number(double(count));
    }

private:
    QStringList m_names;
    std::map<int, std::size_t> m_columnOf; ///< by code
};

class SessionSheet
{
public:
    SessionSheet(Workbook& book, const std::vector<RoverSession>& sessions,
                 const QualityLimits& limits)
        : m_limits(limits), m_solutions(sessions), m_sheet(addSheet(book))
    {
    }

    void add(const RoverSession& session);

private:
    using Colour = Sheet::Colour;

    Sheet& addSheet(Workbook& book);
    void describe();
    void describeQuality();
    void group(const QString& caption, int columns) { m_look.groups.push_back({caption, columns}); }
    /// \returns its place
    std::size_t column(const QString& caption, Form form = Form::Number, int decimals = 0)
    {
        m_columns.push_back({caption, form, decimals});
        return m_columns.size() - 1;
    }
    void colour(std::size_t column, double above, Colour colour = Colour::Fault)
    {
        m_above.push_back({column, above, colour});
    }
    void addAntenna(const std::vector<double>& heights, std::size_t changes);

    struct Rule
    {
        std::size_t column;
        double limit;
        Colour colour;
    };

    const QualityLimits& m_limits;
    SolutionColumns m_solutions;
    SheetLook m_look{{}, {}, 4};
    std::vector<SheetColumn> m_columns;
    std::vector<Rule> m_above;
    std::vector<Rule> m_below;
    Sheet& m_sheet;
};

void SessionSheet::describe()
{
    group(Texts::tr("Session"), 4);
    column(Texts::tr("Day"), Form::Date);
    column(Texts::tr("Rover"), Form::Text);
    column(Texts::tr("Surveyor"), Form::Text);
    column(Texts::tr("Base"), Form::Text);
    group(Texts::tr("Time"), 4);
    column(Texts::tr("First"), Form::Time);
    column(Texts::tr("Last"), Form::Time);
    column(Texts::tr("Hours"), Form::Number, 2);
    column(Texts::tr("Longest gap (min)"), Form::Number, 1);
    group(Texts::tr("Points"), 8);
    column(Texts::tr("All"));
    column(Texts::tr("R"));
    column(Texts::tr("S"));
    column(Texts::tr("Resurveys"));
    column(Texts::tr("Repeats"));
    column(Texts::tr("An hour"), Form::Number, 1);
    colour(column(Texts::tr("Failed")), 0, Colour::Warning);
    colour(column(Texts::tr("Not judged")), 0, Colour::Warning);
}

void SessionSheet::describeQuality()
{
    const auto meanAndWorst = [this](const QString& caption, const QString& worst, int decimals,
                                     double limit) {
        group(caption, 2);
        colour(column(Texts::tr("Mean"), Form::Number, decimals), limit);
        colour(column(worst, Form::Number, decimals), limit);
    };
    meanAndWorst(Texts::tr("PDOP"), Texts::tr("Worst"), 2, m_limits.pdop.max);
    group(Texts::tr("Satellites"), 2);
    m_below.push_back({column(Texts::tr("Mean"), Form::Number, 1), m_limits.satellites, {}});
    m_below.push_back({column(Texts::tr("Fewest")), m_limits.satellites, {}});
    meanAndWorst(Texts::tr("HRMS (m)"), Texts::tr("Worst"), 3, m_limits.hrmsM);
    meanAndWorst(Texts::tr("VRMS (m)"), Texts::tr("Worst"), 3, m_limits.vrmsM);
    if (!m_solutions.names().empty())
        group(Texts::tr("Solutions"), m_solutions.names().size());
    for (const QString& name : m_solutions.names()) {
        const std::size_t place = column(name);
        if (name != solutionTypeText(kFixed))
            colour(place, 0, Colour::Warning);
    }
    group(Texts::tr("Antenna height (m)"), 4);
    column(Texts::tr("Used"), Form::Text);
    for (const QString& caption : {Texts::tr("Lowest"), Texts::tr("Highest")}) {
        const std::size_t place = column(caption, Form::Number, 3);
        colour(place, m_limits.antennaM.max);
        m_below.push_back({place, m_limits.antennaM.min, {}});
    }
    colour(column(Texts::tr("Changes")), 0, Colour::Warning);
    meanAndWorst(Texts::tr("Base distance (km)"), Texts::tr("Largest"), 3,
                 m_limits.baseDistanceM / kKilometre);
}

Sheet& SessionSheet::addSheet(Workbook& book)
{
    describe();
    describeQuality();
    Sheet& sheet = book.addSheet(Texts::tr("Sessions"), m_columns, m_look);
    for (const Rule& rule : m_above)
        sheet.colourAbove(rule.column, rule.limit, rule.colour);
    for (const Rule& rule : m_below)
        sheet.colourBelow(rule.column, rule.limit, rule.colour);
    return sheet;
}

void SessionSheet::addAntenna(const std::vector<double>& heights, std::size_t changes)
{
    QStringList texts;
    for (const double height : heights)
        texts << QString::number(height, 'f', 3);
    m_sheet.text(roverLogList(texts))
        .number(heights.empty() ? statistics::kUnknown : heights.front())
        .number(heights.empty() ? statistics::kUnknown : heights.back())
        .number(double(changes));
}

void SessionSheet::add(const RoverSession& session)
{
    if (session.day == KeyValue::kNoNumber)
        m_sheet.text(Texts::tr("without a time"));
    else
        m_sheet.day(session.day);
    for (const std::string& name : {session.rover, session.surveyor, session.base})
        m_sheet.text(roverLogName(name));
    m_sheet.timeOrBlank(session.firstMs)
        .timeOrBlank(session.lastMs)
        .number(session.hours())
        .number(session.longestGapMinutes);
    for (const std::size_t count :
         {session.points(), session.receivers, session.sources, session.resurveys, session.repeats})
        m_sheet.number(double(count));
    m_sheet.number(session.pointsAnHour())
        .number(double(session.failed))
        .number(double(session.notJudged))
        .number(session.pdop.mean())
        .number(session.pdop.maximum())
        .number(session.satellites.mean())
        .number(session.satellites.minimum());
    for (const Average& accuracy : {session.horizontalAccuracyM, session.verticalAccuracyM})
        m_sheet.number(accuracy.mean()).number(accuracy.maximum());
    m_solutions.write(m_sheet, session);
    addAntenna(session.antennaHeightsM, session.antennaChanges);
    m_sheet.number(session.baseDistanceM.mean() / kKilometre)
        .number(session.baseDistanceM.maximum() / kKilometre)
        .endRow();
}

} // namespace

bool writeRoverSessions(Workbook& book, const std::vector<RoverSession>& sessions,
                        const QualityLimits& limits, ReportSteps& steps)
{
    SessionSheet sheet(book, sessions, limits);
    for (const RoverSession& session : sessions) {
        sheet.add(session);
        if (!steps.next())
            return false;
    }
    return true;
}
