#pragma once

#include "project/ui/DlgProjectPlace.h"

/// Asks where a new project is made.
class DlgNewProject final : public DlgProjectPlace
{
    Q_OBJECT

public:
    explicit DlgNewProject(QWidget* parent);
};
