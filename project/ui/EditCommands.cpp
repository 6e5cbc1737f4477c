#include "project/ui/EditCommands.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/ui/DlgEditSteps.h"
#include "project/ui/EditSteps.h"
#include "project/ui/ProjectState.h"

#include <QCoreApplication>

namespace {

/// Null when there is nothing to go through.
EditSteps* steps()
{
    return ProjectState::hasData() ? EditSteps::instance() : nullptr;
}

} // namespace

bool UndoCommand::isEnabled() const
{
    return steps() != nullptr && steps()->canUndo();
}

QString UndoCommand::caption() const
{
    return isEnabled()
               ? QCoreApplication::translate("UndoCommand", "Undo %1").arg(steps()->undoTitle())
               : QString();
}

void UndoCommand::execute()
{
    steps()->undo();
}

bool RedoCommand::isEnabled() const
{
    return steps() != nullptr && steps()->canRedo();
}

QString RedoCommand::caption() const
{
    return isEnabled()
               ? QCoreApplication::translate("RedoCommand", "Redo %1").arg(steps()->redoTitle())
               : QString();
}

void RedoCommand::execute()
{
    steps()->redo();
}

void EditStepsCommand::execute()
{
    if (EditSteps* const present = steps())
        DlgEditSteps::open(host(), *present);
}
