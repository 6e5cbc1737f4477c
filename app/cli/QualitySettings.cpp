#include "app/cli/QualitySettings.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "quality/QualityLimits.h"
#include "quality/ResurveyCode.h"

#include <cmath>
#include <cstdio>

namespace {

/// \returns an empty text, or why the value cannot be taken
QString setParameter(const QString& pair, IDictionary& parameters)
{
    const QString key = pair.section(QLatin1Char('='), 0, 0);
    QString value = pair.section(QLatin1Char('='), 1);
    const std::string name = key.toStdString();
    if (!pair.contains(QLatin1Char('=')) || qualityParameter(parameters, name).data() == nullptr)
        return QStringLiteral("There is no quality parameter \"%1\".").arg(key);
    if (name == kResurveyCode) {
        const auto code = resurveyCode(value.toStdString());
        if (!code)
            return QStringLiteral("The resurvey code (re_code) is one letter from A to Z, not C.");
        value = QString::fromStdString(*code);
    } else {
        bool isNumber = false;
        const double number = value.toDouble(&isNumber); // in any locale as in C, without groups
        if (!isNumber || !std::isfinite(number))
            return QStringLiteral("\"%1\" is no number for %2.").arg(value, key);
    }
    parameters.set(name, value.toStdString());
    return {};
}

} // namespace

CliResult setQuality(const CliArguments& arguments)
{
    CliProject project;
    QString fault = project.open(arguments.places[0], ProjectAccess::Change);
    for (int i = 1; fault.isEmpty() && i < arguments.places.size(); ++i)
        fault = setParameter(arguments.places[i], project.manager().qualityParameters());
    if (fault.isEmpty())
        fault = project.save();
    return fault.isEmpty() ? CliResult() : CliResult::failed(fault);
}

CliResult listQuality(const CliArguments& arguments)
{
    CliProject project;
    const QString fault = project.open(arguments.places[0], ProjectAccess::Look);
    if (!fault.isEmpty())
        return CliResult::failed(fault);
    for (const QualityParameter& parameter : kQualityParameters) {
        const std::string value(
            qualityParameter(project.manager().qualityParameters(), parameter.key));
        std::printf("%s=%s\n", parameter.key, value.c_str());
    }
    return {};
}
