#include "app/cli/WriteReport.h"

#include "app/cli/CliArguments.h"
#include "app/cli/CliProject.h"
#include "reports/daily/AllReports.h"
#include "reports/ReportInput.h"
#include "reports/ReportKinds.h"

#include <algorithm>
#include <cstdio>

namespace {

/// Reads "--day".
Outcome readDay(const CliArguments& arguments, ReportChoice& choice)
{
    const QString text = arguments.option(QStringLiteral("--day"));
    if (text.isEmpty())
        return Outcome::done();
    const QDate day = QDate::fromString(QString(text).replace(QLatin1Char('/'), QLatin1Char('-')),
                                        QStringLiteral("yyyy-MM-dd"));
    if (!day.isValid())
        return Outcome::refused(
            QStringLiteral("\"%1\" is not a day such as 2025-05-17 or 2025/05/17").arg(text));
    choice.setDays(day, day);
    return Outcome::done();
}

/// Whether a file is named as another kind of report is: no program would open it.
bool isOfAnother(const ReportKind& kind, const QString& file)
{
    const auto reports = allReports();
    return !file.endsWith(QLatin1String(kind.ending), Qt::CaseInsensitive) &&
           std::any_of(reports.begin(), reports.end(), [&](const ReportKind& other) {
               return file.endsWith(QLatin1String(other.ending), Qt::CaseInsensitive);
           });
}

} // namespace

Outcome writeReport(const CliArguments& arguments)
{
    const QString& name = arguments.places[1];
    const ReportKind* const kind = findReport(name.toStdString());
    if (kind == nullptr)
        return Outcome::refused(QStringLiteral("there is no report \"%1\"; there is %2")
                                    .arg(name, QString::fromStdString(reportNames(", "))));
    const QString& file = arguments.places[2];
    if (isOfAnother(*kind, file))
        return Outcome::refused(
            QStringLiteral("\"%1\" must end with %2").arg(file, QLatin1String(kind->ending)));
    ReportChoice choice;
    if (Outcome reading = readDay(arguments, choice); !reading.isDone())
        return reading;
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    Outcome outcome = Outcome::done();
    project.manager().writeReport(*kind, file, choice, &outcome);
    if (outcome.isDone())
        std::printf("%s\n", qUtf8Printable(outcome.text()));
    return outcome;
}
