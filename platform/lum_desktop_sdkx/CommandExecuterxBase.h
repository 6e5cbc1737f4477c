#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/ICommandExecuterx.h"

class IDesktopHost;

/// The base of most commands: always enabled, never checked, with the caption of its entry.
class CommandExecuterxBase : public ICommandExecuterx
{
public:
    /// \param config the attributes of the entry in the frame's layout, as a key list; may be null
    CommandExecuterxBase(const char* config, IDesktopHost* host);

    [[nodiscard]] bool isEnabled() const override { return true; }
    [[nodiscard]] bool isChecked() const override { return false; }
    [[nodiscard]] bool isCheckable() const override { return false; }
    [[nodiscard]] QString caption() const override { return {}; }

protected:
    [[nodiscard]] IDesktopHost& host() const { return m_host; }
    [[nodiscard]] const IDictionary& parameters() const { return m_parameters; }

private:
    IDesktopHost& m_host; // outlives every command
    basalt::Dictionary m_parameters;
};
