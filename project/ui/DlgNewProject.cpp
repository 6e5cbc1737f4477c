#include "project/ui/DlgNewProject.h"

DlgNewProject::DlgNewProject(QWidget* parent)
    : DlgProjectPlace(parent, tr("New Project"), tr("The project will be in \"%1\"."))
{
}
