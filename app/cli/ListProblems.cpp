#include "app/cli/ListProblems.h"

#include "app/cli/CliArguments.h"
#include "app/cli/CliProject.h"
#include "exchange/ShownTimes.h"
#include "lum_sdk/GroupedNumber.h"
#include "project/OwnFile.h"
#include "quality/problems/ForCrew.h"
#include "quality/problems/ProblemCsv.h"
#include "quality/problems/ProblemFinders.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using Kinds = std::vector<const ProblemKind*>;

/// The kinds of a comma-separated list.
Outcome readKinds(const QString& names, Kinds& kinds)
{
    for (const QString& name : names.split(u',', Qt::SkipEmptyParts)) {
        kinds.push_back(findProblemKind(name.trimmed().toStdString()));
        if (kinds.back() != nullptr)
            continue;
        QStringList known;
        for (const ProblemKind* const kind : problemKinds())
            known << QLatin1String(kind->name);
        return Outcome::refused(QStringLiteral("there is no kind \"%1\"; there is %2")
                                    .arg(name, known.join(QStringLiteral(", "))));
    }
    return Outcome::done();
}

std::vector<const Problem*> openOnes(const ProblemList& problems)
{
    std::vector<const Problem*> found;
    for (const Problem& problem : problems) {
        if (!problem.isAccepted)
            found.push_back(&problem);
    }
    return found;
}

/// How many there are in all and of each kind.
void printCounts(const std::vector<const Problem*>& problems)
{
    const auto print = [](const QString& what, std::size_t count) {
        std::printf("%s: %s\n", what.toUtf8().constData(),
                    lum::groupedNumber(count).toUtf8().constData());
    };
    print(QCoreApplication::translate("ListProblems", "Problems"), problems.size());
    for (const ProblemKind* const kind : problemKinds()) {
        const auto count = std::ranges::count(problems, kind,
                                              [](const Problem* problem) { return problem->kind; });
        if (count > 0)
            print(kind->captionText(), static_cast<std::size_t>(count));
    }
}

Outcome print(const std::vector<const Problem*>& problems, const QString& file)
{
    if (file.isEmpty()) {
        formatProblemCsv(problems, ResultCsv::ForScripts, shownTimes(), [](std::string_view line) {
            std::fwrite(line.data(), 1, line.size(), stdout);
        });
        return Outcome::done();
    }
    const Outcome writing = writeProblemCsv(file, problems, ResultCsv::ForScripts, shownTimes());
    if (!writing.isDone())
        return Outcome::failed(QString::fromStdString(writing.detail()));
    printCounts(problems);
    return Outcome::done();
}

Outcome writeCrewList(DataProcessDataManager& manager, std::vector<const Problem*> problems,
                      const QString& file)
{
    std::erase_if(problems, [&](const Problem* problem) {
        return !isForCrew(*problem, manager.designPoints());
    });
    Outcome writing = Outcome::done();
    manager.exportCrewList(problems, file, &writing);
    if (writing.isDone())
        std::fprintf(stderr, "%s\n", qUtf8Printable(writing.text()));
    return writing;
}

} // namespace

Outcome listProblems(const CliArguments& arguments)
{
    Kinds kinds;
    if (Outcome reading = readKinds(arguments.option(QStringLiteral("--kind")), kinds);
        !reading.isDone())
        return reading;
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    const QString file = arguments.option(QStringLiteral("--out"));
    if (Outcome ownFile = checkNotOwn(project.place(), file); !ownFile.isDone())
        return ownFile;
    const QString crewFile = arguments.option(QStringLiteral("--measure-again"));
    if (!file.isEmpty() && QFileInfo(crewFile) == QFileInfo(file))
        return Outcome::refused(QStringLiteral("--out and --measure-again name the same file"));
    const ProblemList problems = project.manager().findProblems(kinds);
    const std::vector<const Problem*> found = openOnes(problems);
    Outcome writing = print(found, file);
    if (writing.isDone() && !crewFile.isEmpty())
        writing = writeCrewList(project.manager(), found, crewFile);
    return writing.isDone() && !found.empty() ? Outcome::found() : writing;
}
