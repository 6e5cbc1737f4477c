#include "app/cli/QualitySettings.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "quality/QualityLimits.h"
#include "quality/ResurveyCode.h"

#include <cmath>
#include <cstdio>

namespace {

Outcome checkNumber(const QualityParameter& parameter, const QString& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber); // in every locale with a decimal point
    if (isNumber && parameter.isWhole)
        (void)value.toLongLong(&isNumber);
    const QString key = QString::fromLatin1(parameter.key);
    if (!isNumber || !std::isfinite(number))
        return Outcome::failed((parameter.isWhole
                                    ? QStringLiteral("\"%1\" is no whole number for %2.")
                                    : QStringLiteral("\"%1\" is no number for %2."))
                                   .arg(value, key));
    if (number > parameter.largest)
        return Outcome::failed(QStringLiteral("%1 is too large for %2, which is at most %3.")
                                   .arg(value, key)
                                   .arg(parameter.largest, 0, 'f', 0));
    return Outcome::done();
}

/// \param pair  key=value
Outcome setParameter(const QString& pair, IDictionary& parameters)
{
    const QString key = pair.section(QLatin1Char('='), 0, 0).trimmed();
    QString value = pair.section(QLatin1Char('='), 1).trimmed();
    const std::string name = key.toStdString();
    const QualityParameter* const parameter = findQualityParameter(name);
    if (!pair.contains(QLatin1Char('=')) || parameter == nullptr)
        return Outcome::failed(QStringLiteral("There is no quality parameter \"%1\".").arg(key));
    if (name == kResurveyCode) {
        const auto code = resurveyCode(value.toStdString());
        if (!code)
            return Outcome::failed(
                QStringLiteral("The resurvey code (re_code) is one letter from A to Z, not C."));
        value = QString::fromStdString(*code);
    } else if (Outcome number = checkNumber(*parameter, value); !number.isDone()) {
        return number;
    }
    parameters.set(name, value.toStdString());
    return Outcome::done();
}

} // namespace

Outcome setQuality(const CliArguments& arguments)
{
    CliProject project;
    Outcome outcome = project.open(arguments.places[0], ProjectAccess::Change);
    basalt::Dictionary parameters(project.manager().qualityParameters());
    for (int i = 1; outcome.isDone() && i < arguments.places.size(); ++i)
        outcome = setParameter(arguments.places[i], parameters);
    if (!outcome.isDone())
        return outcome;
    project.manager().setQualityParameters(parameters);
    return project.save();
}

Outcome listQuality(const CliArguments& arguments)
{
    CliProject project;
    Outcome opening = project.open(arguments.places[0], ProjectAccess::Look);
    if (!opening.isDone())
        return opening;
    for (const QualityParameter& parameter : kQualityParameters) {
        const std::string value(
            qualityParameter(project.manager().qualityParameters(), parameter.key));
        std::printf("%s=%s\n", parameter.key, value.c_str());
    }
    return opening;
}
