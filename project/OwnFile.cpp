#include "project/OwnFile.h"

#include "project/ProjectPlace.h"

#include <QCoreApplication>

Outcome checkNotOwn(const ProjectPlace& project, const QString& path)
{
    if (!project.owns(path))
        return Outcome::done();
    return Outcome::failed(QCoreApplication::translate(
                               "DataProcessDataManager",
                               "\"%1\" belongs to the open project; please choose another file.")
                               .arg(path));
}
