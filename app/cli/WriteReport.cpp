#include "app/cli/WriteReport.h"

#include "app/cli/CliArguments.h"
#include "app/cli/CliProject.h"
#include "reports/ReportInput.h"
#include "reports/ReportKinds.h"

#include <cstdio>

Outcome writeReport(const CliArguments& arguments)
{
    const QString& name = arguments.places[1];
    const ReportKind* const kind = findReportKind(name.toStdString());
    if (kind == nullptr)
        return Outcome::refused(QStringLiteral("there is no report \"%1\"; there is %2")
                                    .arg(name, QString::fromStdString(reportNames(", "))));
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    Outcome outcome = Outcome::done();
    project.manager().writeReport(*kind, arguments.places[2], ReportChoice(), &outcome);
    if (outcome.isDone())
        std::printf("%s\n", qUtf8Printable(outcome.text()));
    return outcome;
}
