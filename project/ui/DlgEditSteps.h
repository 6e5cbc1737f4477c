#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "project/ui/ClosesWithProject.h"

class EditSteps;
class IDesktopHost;
class QListWidget;

/// The list of the steps, the oldest first, and before them the project as it was at first. Those
/// that are taken back are grey. A double click, or Enter, goes to the project as it was right
/// after a step. There is one such list; it stays open beside the work and closes with its project.
class DlgEditSteps final : public Dialog
{
    Q_OBJECT

public:
    static void open(IDesktopHost& host, EditSteps& steps);

private:
    DlgEditSteps(IDesktopHost& host, EditSteps& steps);

    void refresh();
    void goToCurrent();

    EditSteps& m_steps; // outlives the project, and so this
    QListWidget* m_list;
    ClosesWithProject m_closing;
};
