#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Opens the guide that the entry's attribute "file" names, a Markdown file in the configuration
/// folder. The texts of the layout may name another file for a language.
class GuideCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
