#include "app/cli/PrintMap.h"

#include "app/cli/CliArguments.h"
#include "app/cli/CliProject.h"
#include "app/cli/MapChoice.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "map/sheet/MapGround.h"
#include "map/sheet/MapSheet.h"
#include "map/sheet/SheetFile.h"

#include <QCoreApplication>

#include <cmath>
#include <cstdio>

namespace {

/// \returns NaN for a text that is not a number between two limits
double readNumber(const QString& text, double least, double most)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && number >= least && number <= most ? number : std::nan("");
}

/// Reads what the paper is to look like.
Outcome readPaper(const CliArguments& arguments, SheetSetup& setup)
{
    const QString name = arguments.option(QStringLiteral("--paper"));
    if (!name.isEmpty()) {
        const Paper* const paper = findPaper(name);
        if (paper == nullptr)
            return Outcome::refused(
                QStringLiteral("there is no paper \"%1\"; there are %2").arg(name, paperNames()));
        setup.paper = *paper;
    }
    setup.isLandscape = arguments.options.contains(QStringLiteral("--landscape"));
    if (const QString dpi = arguments.option(QStringLiteral("--dpi")); !dpi.isEmpty())
        setup.dpi = readNumber(dpi, kLeastDpi, kMostDpi);
    if (!std::isfinite(setup.dpi))
        return Outcome::refused(QStringLiteral("--dpi takes dots to an inch, from %1 to %2")
                                    .arg(kLeastDpi)
                                    .arg(kMostDpi));
    if (const QString scale = arguments.option(QStringLiteral("--scale")); !scale.isEmpty())
        setup.scale = readNumber(scale, kLeastScale, kMostScale);
    if (setup.scale && !std::isfinite(*setup.scale))
        return Outcome::refused(
            QStringLiteral("--scale takes 5000 for 1:5000, from 10 to 100000000"));
    setup.title = arguments.option(QStringLiteral("--title"));
    return Outcome::done();
}

} // namespace

Outcome printMap(const CliArguments& arguments)
{
    MapChoice choice;
    MapSheet sheet;
    if (Outcome reading = choice.read(arguments); !reading.isDone())
        return reading;
    if (Outcome reading = readPaper(arguments, sheet.setup); !reading.isDone())
        return reading;
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    const IDictionary& system = get_project_coord_transform().parameters();
    sheet.ground = std::make_shared<MapGround>(system);
    if (Outcome opening = choice.open(*sheet.ground); !opening.isDone())
        return opening;
    sheet.drawing = choice.drawing(project.manager(), SurveyPictureOptions::Names::WithRoom);
    nameSheet(sheet, project.place().name, system);
    SheetWatch watch;
    ProgressReporter progress(&project.events());
    const QString caption = QCoreApplication::translate("DlgPrintMap", "Writing the map...");
    watch.report = [&](double percent) { progress.report(caption, percent); };
    Outcome outcome = writeSheet(sheet, arguments.places[2], watch);
    progress.finish();
    if (outcome.isDone())
        std::printf("%s\n", qUtf8Printable(outcome.text()));
    return outcome;
}
