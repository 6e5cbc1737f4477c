#pragma once

#include "lum_desktop_sdkx/ISystemSettings.h"

/// The settings object of a desktop program. The application object owns the frame.
class SystemSettings final : public ISystemSettings
{
public:
    explicit SystemSettings(const char* config);

    [[nodiscard]] SystemParameter* getSystemParameter() override;
    [[nodiscard]] IMainFrame* getMainFrame() override;
    [[nodiscard]] ICoordTransform* getCoordTransform() override;
};
