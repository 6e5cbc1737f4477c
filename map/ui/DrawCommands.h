#pragma once

#include "map/ui/MapCommandBase.h"

// The commands that show or hide a part of the map, each by a system status.

/// Shows or hides the design lines of one type. The survey view has no such lines.
class LineToggleCommand : public MapCommandBase
{
public:
    /// \param statusKey the system status that it changes between 1 (shown, the default) and 0
    LineToggleCommand(const char* config, IDesktopHost* host, const char* statusKey);

    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;

private:
    const char* m_statusKey;
};

class DrawReceiverCommand final : public LineToggleCommand
{
public:
    DrawReceiverCommand(const char* config, IDesktopHost* host);
    [[nodiscard]] QString caption() const override;
};

/// The source lines.
class DrawExcitationCommand final : public LineToggleCommand
{
public:
    DrawExcitationCommand(const char* config, IDesktopHost* host);
    [[nodiscard]] QString caption() const override;
};

/// Shows or hides the rectangle around the extent of the data.
class DrawBoundaryCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};

/// Shows or hides the lines from results to their base stations. The choice is kept among the
/// settings.
class BaseTiesCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};

/// Chooses which names the survey picture has: the entry's attribute "names" is "all", "room" or
/// "none". The choice is kept among the settings.
class ResultNamesCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};
