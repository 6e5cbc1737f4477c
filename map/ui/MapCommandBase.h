#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

class IMapWindow;

/// A command on the map "DataMap".
class MapCommandBase : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;

protected:
    /// The map window; null when there is none.
    [[nodiscard]] IMapWindow* map() const;
    /// Publishes that the system status has changed.
    void announceStatus() const;
};
