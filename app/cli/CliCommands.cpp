#include "app/cli/CliCommands.h"

#include "app/cli/AddOverlay.h"
#include "app/cli/CalculateAzimuth.h"
#include "app/cli/CheckProject.h"
#include "app/cli/CompareProject.h"
#include "app/cli/CreateProject.h"
#include "app/cli/ExportFile.h"
#include "app/cli/GenerateDesign.h"
#include "app/cli/ImportFiles.h"
#include "app/cli/ListProblems.h"
#include "app/cli/PrintHistory.h"
#include "app/cli/PrintMap.h"
#include "app/cli/ProjectInfo.h"
#include "app/cli/QualitySettings.h"
#include "app/cli/RenderProject.h"
#include "app/cli/WriteReport.h"
#include "quality/CheckKinds.h"
#include "reports/daily/AllReports.h"

#include <algorithm>
#include <array>

namespace {

// clang-format off
constexpr int kAny = 1000;

constexpr std::array kCommands{
    CliCommand{"new", "DIR NAME [--epsg CODE | --set key=value ...]",
               "make a project in a folder NAME of DIR, print its project file (DIR is made where it is missing)",
               2, 2, "--epsg,--set", "", createProject},
    CliCommand{"info", "PROJECT",
               "print what is in a project, a \"key: value\" line each",
               1, 1, "", "", printProjectInfo},
    CliCommand{"import-design", "PROJECT FILE.csv",
               "add design points, over those of the same numbers",
               2, 2, "", "", importDesign},
    CliCommand{"import-survey", "PROJECT FILE.csv|FILE.db",
               "add survey results, over those of the same numbers (.db: of another project's database)",
               2, 2, "", "", importSurvey},
    CliCommand{"export", "PROJECT design-csv|design-db|design-kml|survey-csv|survey-kml FILE [--lines A,B] [--columns A,B] [--only-unsurveyed]",
               "write design points, or survey results (CSV: by default in the columns of the settings)",
               3, 3, "--lines,--columns", "--only-unsurveyed", exportFile},
    CliCommand{"compare", "PROJECT OTHER.db [--csv FILE] [--xlsx FILE]",
               "print how far the coordinate system of another project's results is from the project's",
               2, 2, "--csv,--xlsx", "", compareProject},
    CliCommand{"report", "PROJECT REPORT FILE [--day DAY]",
               "write an Excel workbook about the project; daily: the PDF of its last day with results (--day: of the results of that day, such as 2025-05-17)",
               3, 3, "--day", "", writeReport, CliApplication::Widgets},
    CliCommand{"set-quality", "PROJECT key=value ...",
               "set limits of the quality check or of problems",
               2, kAny, "", "", setQuality},
    CliCommand{"list-quality", "PROJECT [--problems]",
               "print the limits of the quality check, a \"key=value\" line each (--problems: those of problems)",
               1, 1, "", "--problems", listQuality},
    CliCommand{"generate", "PROJECT receiver|source|both [--set key=value ...]",
               "replace the whole design by generated lines (--set: design parameters, stored with the project)",
               2, 2, "--set", "", generateDesign},
    CliCommand{"azimuth", "NORTH EAST NORTH EAST [--dms]",
               "print azimuth and length from the first place to the second (--dms: dd.mmss)",
               4, 4, "", "--dms", calculateAzimuth},
    CliCommand{"render", "PROJECT design|survey FILE.png [--size WxH] [--overlay FILE] [--base-map NAME] [--color-by verdict|solution|accuracy|surveyor|rover|day]",
               "paint the whole map into a picture, over images and a base map (each image with its own --overlay, the last on top; --color-by: the results in colours, with their legend)",
               3, 3, "--size,--overlay,--base-map,--color-by", "", renderProject, CliApplication::Painting},
    CliCommand{"print", "PROJECT design|survey FILE.pdf|FILE.png|FILE.tif [--scale N] [--paper A4|A3|A2|A1|A0|...] [--landscape] [--title TEXT] [--dpi N] [--overlay FILE] [--base-map NAME] [--color-by verdict|solution|accuracy|surveyor|rover|day]",
               "put the map on paper, at 1:N or the round scale that shows all, with frame, coordinates and legend (.tif: a GeoTIFF of the map alone)",
               3, 3, "--scale,--paper,--title,--dpi,--overlay,--base-map,--color-by", "--landscape", printMap, CliApplication::Painting},
    CliCommand{"add-overlay", "PROJECT FILE ...",
               "lay images under the map of a project, over those that are there, the last on top",
               2, kAny, "", "", addOverlay},
    CliCommand{"check", "PROJECT CHECK [--out FILE]",
               "check the project, print what is found as CSV (repeat only lists, and changes nothing)",
               2, 2, "--out", "", checkProject},
    CliCommand{"problems", "PROJECT [--kind KIND,...] [--out FILE] [--measure-again FILE]",
               "print everything that is wrong as CSV (exit status 3 when something is), changing nothing (--measure-again: its design points for the crew, .csv or .kml)",
               1, 1, "--kind,--out,--measure-again", "", listProblems},
    CliCommand{"history", "PROJECT [--point LINE/POINT] [--since DAY]",
               "print who changed what and when as CSV, the newest first (a point: what became of it)",
               1, 1, "--point,--since", "", printHistory},
};
// clang-format on

QStringList split(const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

QString usageOf(const CliCommand& command)
{
    QString usage = QString::fromLatin1(command.usage);
    usage.replace(QLatin1String("CHECK"), QString::fromStdString(checkNames("|")));
    usage.replace(QLatin1String("REPORT"), QString::fromStdString(reportNames("|")));
    return QStringLiteral("skyquill-cli %1 %2").arg(QLatin1String(command.name), usage);
}

/// Null when there is none of that name.
const CliCommand* find(const QString& name)
{
    const auto* const found =
        std::find_if(kCommands.begin(), kCommands.end(), [&](const CliCommand& command) {
            return name == QLatin1String(command.name);
        });
    return found == kCommands.end() ? nullptr : found;
}

Outcome run(const CliCommand& command, const QStringList& texts)
{
    CliArguments arguments;
    Outcome reading =
        CliArguments::read(texts, split(command.options), split(command.flags), arguments);
    const int places = arguments.places.size();
    const QString name = QLatin1String(command.name);
    if (reading.isDone() && places < command.fewestPlaces)
        reading = Outcome::refused(QStringLiteral("%1 needs more arguments").arg(name));
    if (reading.isDone() && places > command.mostPlaces)
        reading = Outcome::refused(QStringLiteral("%1 takes fewer arguments").arg(name));
    if (!reading.isDone())
        return Outcome::refused(reading.text() + QStringLiteral("; usage: ") + usageOf(command));
    return command.run(arguments);
}

} // namespace

CliApplication cliApplication(const QStringList& arguments)
{
    const CliCommand* const command = find(arguments.value(0));
    return command == nullptr ? CliApplication::Plain : command->application;
}

Outcome runCli(const QStringList& arguments)
{
    if (arguments.isEmpty())
        return Outcome::refused(QStringLiteral("no command; see skyquill-cli --help"));
    const CliCommand* const command = find(arguments[0]);
    if (command == nullptr)
        return Outcome::refused(
            QStringLiteral("unknown command \"%1\"; see skyquill-cli --help").arg(arguments[0]));
    return run(*command, arguments.mid(1));
}

QString cliHelp()
{
    QString text = QStringLiteral("Stake-out data of land seismic surveys, without a window.\n\n");
    for (const CliCommand& command : kCommands)
        text += QStringLiteral("  %1\n      %2\n")
                    .arg(usageOf(command), QLatin1String(command.summary));
    return text + QStringLiteral("  skyquill-cli --help | --version\n"
                                 "      print this text, or the version\n"
                                 "\nPROJECT is a project file. The exit status is 0 when all is "
                                 "done, 1 after a failure (also of an import that finds no "
                                 "point), 2 for wrong usage, 3 when problems are found.\n");
}
