#include "reports/daily/DailyProblems.h"

#include "exchange/ShownTimes.h"
#include "lum_sdk/GroupedNumber.h"
#include "quality/problems/ProblemColumns.h"
#include "quality/problems/ProblemFinders.h"
#include "quality/problems/ProblemList.h"
#include "reports/daily/DailyFigures.h"

#include <QCoreApplication>

#include <algorithm>
#include <map>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DailyReport)
};

constexpr std::size_t kMostRows = 100;

// What is wrong is told with value and limit.
constexpr ProblemField kFields[] = {
    ProblemField::Severity, ProblemField::Line,  ProblemField::Point, ProblemField::What,
    ProblemField::Surveyor, ProblemField::Rover, ProblemField::Day};
constexpr int kWhatLines = 3;
constexpr int kNameLines = 2;

const ProblemColumn& columnOf(ProblemField field)
{
    return problemColumns()[static_cast<std::size_t>(field)];
}

QString captionOf(ProblemField field)
{
    return columnOf(field).captionText();
}

DailyTable kindsOf(const std::vector<const Problem*>& problems, const DailyFigures& figures)
{
    struct Counts
    {
        std::size_t ofDay = 0;
        std::size_t all = 0;
    };
    std::map<const ProblemKind*, Counts> counts;
    for (const Problem* const problem : problems) {
        Counts& of = counts[problem->kind];
        ++of.all;
        of.ofDay += figures.isOfDay(problem->timeMs) ? 1U : 0U;
    }
    DailyTable table{Texts::tr("Open problems by kind"),
                     {{captionOf(ProblemField::Severity), false},
                      {captionOf(ProblemField::Kind), false},
                      {Texts::tr("Of the day")},
                      {Texts::tr("In the project")}},
                     {},
                     true,
                     {}};
    Counts sum;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        for (const ProblemKind* const kind : problemKinds()) {
            const auto found = counts.find(kind);
            if (found == counts.end() || kind->severity != severity)
                continue;
            table.rows.push_back({severityText(severity), kind->captionText(),
                                  lum::groupedNumber(found->second.ofDay),
                                  lum::groupedNumber(found->second.all)});
            sum.ofDay += found->second.ofDay;
            sum.all += found->second.all;
        }
    }
    table.rows.push_back(
        {Texts::tr("All"), QString(), lum::groupedNumber(sum.ofDay), lum::groupedNumber(sum.all)});
    return table;
}

DailyTable rowsOf(std::vector<const Problem*> problems, const DailyFigures& figures)
{
    std::stable_sort(problems.begin(), problems.end(), [&](const Problem* a, const Problem* b) {
        const bool isFirstOfDay = figures.isOfDay(a->timeMs);
        if (isFirstOfDay != figures.isOfDay(b->timeMs))
            return isFirstOfDay;
        return a->kind->severity > b->kind->severity;
    });
    DailyTable table;
    table.title = Texts::tr("Open problems, those of the day first");
    for (const ProblemField field : kFields)
        table.columns.push_back(
            {captionOf(field), false, field == ProblemField::What ? kWhatLines : kNameLines});
    basalt::LocalTimes zone = shownTimes();
    for (std::size_t i = 0; i < std::min(problems.size(), kMostRows); ++i) {
        QStringList& cells = table.rows.emplace_back();
        for (const ProblemField field : kFields)
            cells << columnOf(field).text(*problems[i], zone);
    }
    if (problems.size() > kMostRows)
        table.note = Texts::tr("and %1 more; the window \"Problems\" has them all")
                         .arg(lum::groupedNumber(problems.size() - kMostRows));
    return table;
}

} // namespace

DailyProblems::DailyProblems(const ProblemList& problems, const DailyFigures& figures)
{
    std::vector<const Problem*> open;
    open.reserve(problems.size());
    for (const Problem& problem : problems) {
        if (!problem.isAccepted)
            open.push_back(&problem);
    }
    count = open.size();
    kinds = kindsOf(open, figures);
    rows = rowsOf(std::move(open), figures);
}
