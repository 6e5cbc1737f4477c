#include "app/cli/ProjectInfo.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "basalt_utilities/Numbers.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/Text.h"
#include "model/CoordinateRecord.h"
#include "project/ProjectFile.h"

#include <cstdio>

namespace {

void print(const char* key, std::string_view value)
{
    std::printf("%s: %.*s\n", key, static_cast<int>(value.size()), value.data());
}

void print(const char* key, std::size_t value)
{
    print(key, std::to_string(value));
}

std::string_view projectionName(const IDictionary& system)
{
    const int code = system.integer("project_type");
    for (const lum::ProjectionKind& kind : lum::projectionKinds()) {
        if (kind.code == code)
            return kind.name;
    }
    return "none";
}

void printSystem()
{
    const IDictionary& system = get_project_coord_transform().parameters();
    print("coordinate_system", system.text(CoordinateRecord::kId, CoordinateRecord::kUndefinedId));
    print("ellipsoid", system.text("ellipsoid_name"));
    print("projection", projectionName(system));
    if (const lum::LengthUnit unit = lum::lengthUnitOf(system); !lum::isMetre(unit))
        print("unit", unit.name + ", " + basalt::formatShortest(unit.metres) + " m");
}

void printDesign(const DesignPoints& points)
{
    std::size_t receivers = 0;
    std::size_t surveyed = 0;
    for (const auto& [number, line] : points) {
        for (const DesignPoint& point : line) {
            receivers += point.type == 1 ? 1 : 0;
            surveyed += point.status != 0 ? 1 : 0;
        }
    }
    print("design_lines", points.lineCount());
    print("design_points", points.pointCount());
    print("receiver_points", receivers);
    print("source_points", points.pointCount() - receivers);
    print("surveyed_points", surveyed);
}

} // namespace

Outcome printProjectInfo(const CliArguments& arguments)
{
    CliProject project;
    Outcome opening = project.open(arguments.places[0], ProjectAccess::Look);
    if (!opening.isDone())
        return opening;
    DataProcessDataManager& manager = project.manager();
    print("project", project.place().name.toStdString());
    print("folder", project.place().folder.toStdString());
    print("created", manager.project().text(ProjectFile::kTime));
    print("program_version", manager.project().text(ProjectFile::kVersion));
    printSystem();
    printDesign(manager.designPoints());
    print("survey_lines", manager.surveyPoints().lineCount());
    print("survey_results", manager.surveyPoints().pointCount());
    return opening;
}
