#include "quality/problems/NameProblems.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "quality/problems/NameExplanation.h"
#include "quality/problems/WrongNames.h"

#include <QCoreApplication>

#include <array>
#include <cmath>
#include <set>
#include <utility>

namespace {

// In a problem of a name, the other point is the likely one (or the other result), `value` the
// distance to the own design point, `second` that to the likely one, and `detail` the number that
// is proposed. `count` has these bits.
constexpr std::uint32_t kAnother = 1;     // it is one more result of a point
constexpr std::uint32_t kLeavesPoint = 2; // no result has its name then

struct NameProblems
{
    Q_DECLARE_TR_FUNCTIONS(NameProblems)
};

QString metres(double lengthM)
{
    constexpr int kDecimals = 2;
    return QString::fromStdString(basalt::formatFixed(lengthM, kDecimals));
}

/// With its line when that is not the problem's.
QString nameOf(const Problem& problem, std::string_view line, std::string_view point)
{
    const QString number = lum::toQString(writtenPointNumber(point));
    return line == problem.line ? number : lum::toQString(line) + QStringLiteral(" / ") + number;
}

QString wrongNameAlone(const Problem& problem)
{
    const QString likely = nameOf(problem, problem.otherLine, problem.otherPoint);
    const QString proposed =
        problem.detail.empty() ? likely : nameOf(problem, problem.otherLine, problem.detail);
    if (std::isnan(problem.value))
        return NameProblems::tr("Is probably %1: it is %2 m from %3, and no point has its name.")
            .arg(proposed, metres(problem.second), likely);
    if ((problem.count & kAnother) == 0)
        return NameProblems::tr("Is probably %1, %2 m away; its own is %3 m away.")
            .arg(proposed, metres(problem.second), metres(problem.value));
    return NameProblems::tr("Stands where %1 does, %2 m from its design point; its own is %3 m "
                            "away. It is probably one more measurement of %1.")
        .arg(likely, metres(problem.second), metres(problem.value));
}

QString wrongName(const Problem& problem)
{
    QString text = wrongNameAlone(problem);
    if (leavesPoint(problem))
        text += QLatin1Char(' ') + NameProblems::tr("Then %1 is not surveyed.")
                                       .arg(nameOf(problem, problem.line, problem.point));
    return withFollowing(text, problem);
}

QString swappedNames(const Problem& problem)
{
    return withFollowing(
        NameProblems::tr("Its name and that of %1 are probably exchanged: it is %2 m from the "
                         "design point of %1; its own is %3 m away.")
            .arg(nameOf(problem, problem.otherLine, problem.otherPoint), metres(problem.second),
                 metres(problem.value)),
        problem);
}

QString foreignResult(const Problem& problem)
{
    return withFollowing(
        NameProblems::tr("Has no result, but the result %1 stands %2 m from it, and no point "
                         "has that name.")
            .arg(nameOf(problem, problem.otherLine, problem.otherPoint), metres(problem.second)),
        problem);
}

constexpr ProblemKind kWrongName{.name = "wrong_name",
                                 .caption = QT_TRANSLATE_NOOP("ProblemKinds", "Wrong name"),
                                 .severity = Severity::Error,
                                 .what = wrongName,
                                 .rank = 1};
constexpr ProblemKind kSwappedNames{.name = "swapped_names",
                                    .caption = QT_TRANSLATE_NOOP("ProblemKinds", "Exchanged names"),
                                    .severity = Severity::Error,
                                    .what = swappedNames,
                                    .rank = 1};
constexpr ProblemKind kForeignResult{
    .name = "foreign_result",
    .caption = QT_TRANSLATE_NOOP("ProblemKinds", "Foreign result on an empty point"),
    .severity = Severity::Error,
    .what = foreignResult,
    .rank = 1};
constexpr std::array kNameKinds{&kWrongName, &kSwappedNames, &kForeignResult};

using Names = std::set<std::pair<std::string_view, std::string_view>>; // line, point

Names proposedNames(const std::vector<WrongName>& wrongNames)
{
    Names names;
    for (const WrongName& wrong : wrongNames)
        names.emplace(wrong.proposed.line, wrong.proposed.point);
    return names;
}

/// Whether no result has the name of a design point any more when the right names are given.
bool leavesPoint(const WrongName& wrong, const Names& proposed)
{
    return wrong.named.form == NameForm::First && wrong.named.design != nullptr &&
           !wrong.proposed.point.empty() &&
           !proposed.contains({wrong.result->lineNumber, wrong.result->pointNumber});
}

void setValues(Problem& problem, double valueM, double limitM, double likelyM)
{
    problem.value = valueM;
    problem.limit = limitM;
    problem.second = likelyM;
}

void add(ProblemList& problems, const WrongName& wrong, const NameLimits& limits, bool leavesPoint)
{
    const bool isForeign = wrong.isForeign();
    Problem& problem = isForeign ? problems.add(kForeignResult, *wrong.likely, *wrong.result)
                                 : problems.add(kWrongName, *wrong.result, *wrong.likely);
    setValues(problem, isForeign ? wrong.likelyM : wrong.ownM,
              isForeign ? limits.nearM : limits.nearerM, wrong.likelyM);
    problem.detail = problems.keep(wrong.proposed.point);
    problem.count = (wrong.isAnother ? kAnother : 0) | (leavesPoint ? kLeavesPoint : 0);
}

void findNames(const FinderInput& input, ProblemList& problems)
{
    const auto limits = NameLimits::from(input);
    const std::vector<WrongName> wrongNames = findWrongNames(input, limits);
    const Names proposed = proposedNames(wrongNames);
    for (std::size_t i = 0; i < wrongNames.size(); ++i) {
        const std::optional<std::size_t> other = wrongNames[i].exchangedWith;
        if (!other)
            add(problems, wrongNames[i], limits, leavesPoint(wrongNames[i], proposed));
        else if (*other > i)
            setValues(
                problems.add(kSwappedNames, *wrongNames[i].result, *wrongNames[*other].result),
                wrongNames[i].ownM, limits.nearerM, wrongNames[i].likelyM);
    }
}

PointName named(std::string_view line, std::string_view point)
{
    return {std::string(line), std::string(point)};
}

} // namespace

constexpr ProblemFinder kNameFinder{findNames, kNameKinds, explainByNames};

bool leavesPoint(const Problem& problem)
{
    return problem.kind == &kWrongName && (problem.count & kLeavesPoint) != 0;
}

std::vector<Renaming> proposalOf(const Problem& problem)
{
    const PointName own = named(problem.line, problem.point);
    const PointName other = named(problem.otherLine, problem.otherPoint);
    if (problem.kind == &kSwappedNames)
        return {{own, other}, {other, own}};
    if (problem.kind == &kForeignResult)
        return {{other, own}};
    if (problem.kind == &kWrongName && !problem.detail.empty())
        return {{own, named(problem.otherLine, problem.detail)}};
    return {};
}
