#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

class IMapWindow;

/// A command on the map "DataMap".
class MapCommandBase : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;

protected:
    /// Null when there is none.
    [[nodiscard]] IMapWindow* map() const;
    /// Tells everybody that the system status has changed.
    void announceStatus() const;
};
