#include "app/cli/QualitySettings.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "quality/QualityLimits.h"
#include "quality/ResurveyCode.h"

#include <cmath>
#include <cstdio>

namespace {

/// \returns an empty text, or what is wrong with a number
QString numberFault(const QualityParameter& parameter, const QString& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber); // in any locale as in C, without groups
    if (isNumber && parameter.isWhole)
        (void)value.toLongLong(&isNumber);
    const QString key = QString::fromLatin1(parameter.key);
    if (!isNumber || !std::isfinite(number))
        return (parameter.isWhole ? QStringLiteral("\"%1\" is no whole number for %2.")
                                  : QStringLiteral("\"%1\" is no number for %2."))
            .arg(value, key);
    if (number > parameter.largest)
        return QStringLiteral("%1 is too large for %2, which is at most %3.")
            .arg(value, key)
            .arg(parameter.largest, 0, 'f', 0);
    return {};
}

/// \returns an empty text, or why the value cannot be taken
QString setParameter(const QString& pair, IDictionary& parameters)
{
    const QString key = pair.section(QLatin1Char('='), 0, 0).trimmed();
    QString value = pair.section(QLatin1Char('='), 1).trimmed();
    const std::string name = key.toStdString();
    const QualityParameter* const parameter = findQualityParameter(name);
    if (!pair.contains(QLatin1Char('=')) || parameter == nullptr)
        return QStringLiteral("There is no quality parameter \"%1\".").arg(key);
    if (name == kResurveyCode) {
        const auto code = resurveyCode(value.toStdString());
        if (!code)
            return QStringLiteral("The resurvey code (re_code) is one letter from A to Z, not C.");
        value = QString::fromStdString(*code);
    } else if (QString fault = numberFault(*parameter, value); !fault.isEmpty()) {
        return fault;
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
