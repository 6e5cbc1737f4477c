#include "app/cli/QualitySettings.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "quality/problems/ProblemLimits.h"
#include "quality/QualityLimits.h"
#include "quality/ResurveyCode.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <optional>

namespace {

/// A number that a key may have.
struct Allowed
{
    double largest = 0;
    bool isWhole = false;
    std::span<const int> choices{}; ///< the only ones, when there are any
};

Outcome checkNumber(const Allowed& allowed, const QString& key, const QString& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber); // in every locale with a decimal point
    if (isNumber && allowed.isWhole)
        (void)value.toLongLong(&isNumber);
    if (!isNumber || !std::isfinite(number))
        return Outcome::failed((allowed.isWhole
                                    ? QStringLiteral("\"%1\" is no whole number for %2.")
                                    : QStringLiteral("\"%1\" is no number for %2."))
                                   .arg(value, key));
    if (number > allowed.largest)
        return Outcome::failed(QStringLiteral("%1 is too large for %2, which is at most %3.")
                                   .arg(value, key)
                                   .arg(allowed.largest, 0, 'f', 0));
    if (allowed.choices.empty() ||
        std::ranges::find(allowed.choices, number) != allowed.choices.end())
        return Outcome::done();
    QStringList choices;
    for (const int choice : allowed.choices)
        choices << QString::number(choice);
    return Outcome::failed(QStringLiteral("%1 is not allowed for %2, which is one of %3.")
                               .arg(value, key, choices.join(QStringLiteral(", "))));
}

/// Nothing when there is no such key.
std::optional<Allowed> allowedOf(const std::string& key)
{
    if (const QualityParameter* const parameter = findQualityParameter(key))
        return Allowed{parameter->largest, parameter->isWhole};
    if (const ProblemLimit* const limit = findProblemLimit(key))
        return Allowed{limit->largest, limit->isWhole, limit->choices};
    return {};
}

/// \param pair  key=value
Outcome setParameter(const QString& pair, IDictionary& parameters)
{
    const QString key = pair.section(QLatin1Char('='), 0, 0).trimmed();
    QString value = pair.section(QLatin1Char('='), 1).trimmed();
    const std::string name = key.toStdString();
    const std::optional<Allowed> allowed = allowedOf(name);
    if (!pair.contains(QLatin1Char('=')) || !allowed)
        return Outcome::failed(QStringLiteral("There is no quality parameter \"%1\".").arg(key));
    if (name == kResurveyCode) {
        const auto code = resurveyCode(value.toStdString());
        if (!code)
            return Outcome::failed(
                QStringLiteral("The resurvey code (re_code) is one letter from A to Z, not C."));
        value = QString::fromStdString(*code);
    } else if (Outcome number = checkNumber(*allowed, key, value); !number.isDone()) {
        return number;
    }
    parameters.set(name, value.toStdString());
    return Outcome::done();
}

void print(const char* key, std::string_view value)
{
    std::printf("%s=%.*s\n", key, static_cast<int>(value.size()), value.data());
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
    const IDictionary& parameters = project.manager().qualityParameters();
    if (arguments.options.contains(QStringLiteral("--problems"))) {
        for (const ProblemLimitGroup& group : problemLimitGroups()) {
            for (const ProblemLimit& limit : group.limits)
                print(limit.key, parameters.text(limit.key, limit.fallback));
        }
        return opening;
    }
    for (const QualityParameter& parameter : kQualityParameters)
        print(parameter.key, qualityParameter(parameters, parameter.key));
    return opening;
}
