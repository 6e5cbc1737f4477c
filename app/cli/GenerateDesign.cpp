#include "app/cli/GenerateDesign.h"

#include "app/cli/CliArguments.h"
#include "app/cli/CliProject.h"
#include "design/DesignFaults.h"
#include "design/DesignGenerator.h"
#include "lum_sdk/GroupedNumber.h"

#include <cstdio>
#include <optional>

namespace {

std::optional<DesignLines> linesOf(const QString& name)
{
    if (name == QLatin1String("receiver"))
        return DesignLines::Receiver;
    if (name == QLatin1String("source"))
        return DesignLines::Source;
    if (name == QLatin1String("both"))
        return DesignLines::Both;
    return {};
}

/// \param pair key=value
Outcome setParameter(const QString& pair, IDictionary& parameters)
{
    const QString key = pair.section(QLatin1Char('='), 0, 0).trimmed();
    const QString value = pair.section(QLatin1Char('='), 1).trimmed();
    const DesignParameter* const parameter = findDesignParameter(key.toStdString());
    if (parameter == nullptr)
        return Outcome::failed(QStringLiteral("There is no design parameter \"%1\".").arg(key));
    if (const auto fault = faultOf(*parameter, value))
        return Outcome::failed(fault->text);
    parameters.set(parameter->key, storedText(*parameter, value));
    return Outcome::done();
}

void printGrid(const char* name, const DesignGrid& grid)
{
    const QString lines = lum::groupedNumber(grid.lineCount());
    const QString points = lum::groupedNumber(static_cast<qint64>(grid.pointCount()));
    std::printf("%s lines: %s, points: %s\n", name, qPrintable(lines), qPrintable(points));
}

void printGrids(const IDictionary& parameters, DesignLines lines)
{
    if (lines != DesignLines::Source)
        printGrid("receiver", DesignGrid::from(parameters, GridKind::Receiver));
    if (lines != DesignLines::Receiver)
        printGrid("source", DesignGrid::from(parameters, GridKind::Source));
}

} // namespace

Outcome generateDesign(const CliArguments& arguments)
{
    const std::optional<DesignLines> lines = linesOf(arguments.places[1]);
    if (!lines)
        return Outcome::refused(
            QStringLiteral("\"%1\" is not receiver, source or both").arg(arguments.places[1]));
    CliProject project;
    Outcome outcome = project.open(arguments.places[0], ProjectAccess::Change);
    IDictionary& parameters = project.manager().designParameters();
    for (const QString& pair : arguments.options.value(QStringLiteral("--set"))) {
        if (outcome.isDone())
            outcome = setParameter(pair, parameters);
    }
    if (!outcome.isDone())
        return outcome;
    project.manager().generateDesign(*lines, &outcome);
    if (!outcome.isDone())
        return Outcome::failed(outcome.text());
    if (Outcome saving = project.save(); !saving.isDone())
        return saving;
    printGrids(parameters, *lines);
    std::printf("%s.\n", outcome.text().toUtf8().constData());
    return Outcome::done();
}
