#pragma once

#include "lum_desktop_sdkx/IReactor.h"

class IMapWindow;

/// The base of mouse handlers. It handles one thing only: a right click or Escape ends the tool.
class ReactorBase : public IReactor
{
public:
    explicit ReactorBase(IMapWindow* map) : m_map(*map) {}

    int lButtonDown(const MouseKeyEventParameters& event) override;
    int lButtonUp(const MouseKeyEventParameters& event) override;
    int rButtonDown(const MouseKeyEventParameters& event) override;
    /// Installs the map's default reactors and publishes that the system status has changed.
    int rButtonUp(const MouseKeyEventParameters& event) override;
    int mButtonDown(const MouseKeyEventParameters& event) override;
    int mButtonUp(const MouseKeyEventParameters& event) override;
    int dblClick(const MouseKeyEventParameters& event) override;
    int mouseMove(const MouseKeyEventParameters& event) override;
    int mouseWheel(const MouseKeyEventParameters& event) override;
    /// Escape does what the right button does.
    int keyPress(const MouseKeyEventParameters& event) override;
    int keyRelease(const MouseKeyEventParameters& event) override;

protected:
    [[nodiscard]] IMapWindow& map() const { return m_map; }

private:
    IMapWindow& m_map; // owns the reactor
};
