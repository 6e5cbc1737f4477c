#pragma once

#include "project/ui/ProjectCommandBase.h"

struct ProjectPlace;

/// Saves the open project, with its unsaved changes, as a copy in another folder. The open project
/// stays where it is. When it cannot be saved there any more, the user may go on with the copy.
class SaveCopyCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;

private:
    [[nodiscard]] bool save(const ProjectPlace& copy) const;
    [[nodiscard]] bool wantsToGoOn(const ProjectPlace& open, const ProjectPlace& copy) const;
    void goOn(const ProjectPlace& copy) const;
};
