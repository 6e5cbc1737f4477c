#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Takes the last step back; the entry says which.
class UndoCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;

    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] QString caption() const override;
    void execute() override;
};

/// Does the step again that was taken back last.
class RedoCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;

    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] QString caption() const override;
    void execute() override;
};

/// Opens the list of steps.
class EditStepsCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;

    void execute() override;
};
