#pragma once

class ICoordTransform;
class IMainFrame;
class SystemParameter;

/// The settings object of the desktop, registered as "SystemSettings".
class ISystemSettings
{
public:
    virtual ~ISystemSettings() = default;

    /// The same as `get_system_ini_parameter`.
    [[nodiscard]] virtual SystemParameter* getSystemParameter() = 0;

    /// The main frame. The first call builds it from its layout.
    [[nodiscard]] virtual IMainFrame* getMainFrame() = 0;

    /// The coordinate transformation of the open project.
    [[nodiscard]] virtual ICoordTransform* getCoordTransform() = 0;
};

/// The settings object of the process; null before `extensible_factory_get_ISystemSettings` made
/// it.
[[nodiscard]] ISystemSettings* pSystemSettings();
