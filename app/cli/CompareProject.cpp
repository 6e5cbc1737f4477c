#include "app/cli/CompareProject.h"

#include "app/cli/CliArguments.h"
#include "app/cli/CliProject.h"
#include "basalt_utilities/Numbers.h"
#include "exchange/CoordAgreement.h"
#include "exchange/CoordAgreementText.h"
#include "exchange/CoordCompare.h"
#include "exchange/CoordCompareCsv.h"
#include "exchange/CoordCompareWorkbook.h"
#include "exchange/CoordDifferences.h"
#include "exchange/SameCoordSystem.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "project/OwnFile.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <numeric>

namespace {

constexpr std::size_t kMostListed = 5;

std::string fixed(double value)
{
    return std::isfinite(value) ? basalt::formatFixed(withoutMinusZero(value), 3) : "-";
}

void printParameters(const IDictionary& own, const IDictionary& other)
{
    if (other.size() == 0)
        std::puts("parameters: the file has no coordinate system");
    else if (sameCoordSystem(own, other))
        std::puts("parameters: the same");
    else
        for (const std::string& key : differingParameters(own, other))
            std::printf("%s: %s, in the file %s\n", key.c_str(),
                        std::string(own.text(key, "0")).c_str(),
                        std::string(other.text(key, "0")).c_str());
}

void printAxis(const char* name, const AxisFigures& figures, const CoordCompare& comparison)
{
    const SurveyPoint& at = comparison.record(figures.largestRow);
    std::printf("%s: mean %s, std %s, rms %s, max %s at %s/%s\n", name, fixed(figures.mean).c_str(),
                fixed(figures.deviation).c_str(), fixed(figures.rms).c_str(),
                fixed(figures.largest).c_str(), at.lineNumber.c_str(), at.pointNumber.c_str());
}

void printFigures(const CoordCompare& comparison)
{
    const DifferenceFigures figures = differenceFigures(comparison.pairs());
    std::printf("results: %zu\ncompared: %zu\n", comparison.size(), figures.count);
    if (figures.count == 0)
        return;
    printAxis("north_diff", figures.north, comparison);
    printAxis("east_diff", figures.east, comparison);
    printAxis("height_diff", figures.height, comparison);
}

/// The results that are farthest away, the farthest first.
void printLargest(const CoordCompare& comparison)
{
    std::vector<std::pair<double, std::size_t>> rows; // by distance, negative for the order
    for (std::size_t row = 0; row < comparison.size(); ++row) {
        const CoordTriple difference = comparison.difference(row);
        if (isNumber(difference))
            rows.emplace_back(-std::hypot(difference.first, difference.second, difference.third),
                              row);
    }
    const auto listed = static_cast<std::ptrdiff_t>(std::min(rows.size(), kMostListed));
    std::partial_sort(rows.begin(), rows.begin() + listed, rows.end());
    for (auto each = rows.begin(); each != rows.begin() + listed; ++each) {
        const SurveyPoint& record = comparison.record(each->second);
        const CoordTriple difference = comparison.difference(each->second);
        std::printf("%s %s/%s: north %s, east %s, height %s\n",
                    each == rows.begin() ? "largest:" : "        ", record.lineNumber.c_str(),
                    record.pointNumber.c_str(), fixed(difference.first).c_str(),
                    fixed(difference.second).c_str(), fixed(difference.third).c_str());
    }
}

using Write = Outcome (*)(const QString& path, const CoordCompare& comparison, int degreeFormat,
                          ProgressReporter& progress);

/// Writes the file of an option; done when the option was not given.
Outcome writeFile(const CliArguments& arguments, const char* option, Write write,
                  CliProject& project, const CoordCompare& comparison)
{
    const QString path = arguments.option(QLatin1String(option));
    if (path.isEmpty())
        return Outcome::done();
    if (Outcome check = checkNotOwn(project.place(), path); !check.isDone())
        return check;
    if (QFileInfo::exists(path) && QFileInfo(path) == QFileInfo(arguments.places[1]))
        return Outcome::failed(
            QStringLiteral("\"%1\" is the database that is compared.").arg(path));
    ProgressReporter progress(&project.events());
    return write(path, comparison, 0, progress);
}

} // namespace

Outcome compareProject(const CliArguments& arguments)
{
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    SurveyRecords other;
    QStringList remarks;
    ProgressReporter progress(&project.events());
    if (Outcome reading = readSurveyRecords(arguments.places[1], other, remarks, progress);
        !reading.isDone())
        return reading;
    for (const QString& remark : remarks)
        std::fprintf(stderr, "%s\n", qUtf8Printable(remark));
    const IDictionary& own = get_project_coord_transform().parameters();
    const CoordCompare comparison(own, other.coordParameters, std::move(other.records));
    for (const auto& [option, write] : {std::pair("--csv", &writeCoordCompareCsv),
                                        std::pair("--xlsx", &writeCoordCompareWorkbook)}) {
        if (Outcome writing = writeFile(arguments, option, write, project, comparison);
            !writing.isDone())
            return writing;
    }
    printParameters(own, other.coordParameters);
    printFigures(comparison);
    printLargest(comparison);
    const QString sentence =
        agreementText(comparison, coordAgreement(comparison.pairs()), own, other.coordParameters);
    std::printf("%s\n", qUtf8Printable(sentence));
    return Outcome::done();
}
