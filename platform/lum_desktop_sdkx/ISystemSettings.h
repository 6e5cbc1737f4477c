#pragma once

class ICoordTransform;
class IMainFrame;
class SystemParameter;

/// The settings object of the desktop, registered as "SystemSettings".
class ISystemSettings
{
public:
    virtual ~ISystemSettings() = default;

    /// The system parameters, as `get_system_ini_parameter` gives them.
    [[nodiscard]] virtual SystemParameter* getSystemParameter() = 0;

    /// The main frame, built from its layout at the first call.
    [[nodiscard]] virtual IMainFrame* getMainFrame() = 0;

    /// The coordinate transformation of the open project; `parameters` is its system.
    [[nodiscard]] virtual ICoordTransform* getCoordTransform() = 0;
};

/// The settings object that is in use; null before it was first asked for.
[[nodiscard]] ISystemSettings* pSystemSettings();
