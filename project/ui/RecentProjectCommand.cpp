#include "project/ui/RecentProjectCommand.h"

#include "project/RecentProjects.h"
#include "project/ui/ProjectSession.h"

#include <QCoreApplication>
#include <QDir>

void RecentProjectCommand::execute()
{
    const QString chosen = file(); // read before closing, since that may change the list
    if (!chosen.isEmpty() && ProjectSession::closeCurrent(host()))
        ProjectSession::openFile(host(), chosen);
}

bool RecentProjectCommand::isEnabled() const
{
    return !file().isEmpty();
}

QString RecentProjectCommand::caption() const
{
    const QString path = file();
    if (path.isEmpty())
        return place() == 0
                   ? QCoreApplication::translate("RecentProjectCommand", "&No projects yet")
                   : QString();
    QString shown = QDir::toNativeSeparators(path);
    shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
    return QStringLiteral("&%1  %2").arg(place() + 1).arg(shown);
}

int RecentProjectCommand::place() const
{
    return parameters().integer("place");
}

QString RecentProjectCommand::file() const
{
    return RecentProjects::list().value(place());
}
