#pragma once

#include "lum_sdk/raster/BaseMap.h"
#include "map/ui/MapCommandBase.h"

// The commands of the base map.

/// Shows the base map that was shown last, or hides it. Each start of the program, and each
/// project, begins without one.
class LoadOnlineMapCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    [[nodiscard]] bool isEnabled() const override;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
    [[nodiscard]] QString caption() const override;
};

/// Shows another kind of base map while one is shown: the one of that kind that was shown last.
class BaseMapKindCommand : public MapCommandBase
{
public:
    BaseMapKindCommand(const char* config, IDesktopHost* host, lum::BaseMapKind kind);
    [[nodiscard]] bool isEnabled() const override;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;

private:
    lum::BaseMapKind m_kind;
};

class LoadRoadMapCommand final : public BaseMapKindCommand
{
public:
    LoadRoadMapCommand(const char* config, IDesktopHost* host);
};

class LoadSatMapCommand final : public BaseMapKindCommand
{
public:
    LoadSatMapCommand(const char* config, IDesktopHost* host);
};

class LoadTerrainMapCommand final : public BaseMapKindCommand
{
public:
    LoadTerrainMapCommand(const char* config, IDesktopHost* host);
};

/// Lets the user edit the list of base maps.
class ManageBaseMapsCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
};
