#pragma once

#include "lum_desktop_sdkx/ReactorBase.h"

#include <QPoint>

/// Draws a rectangle with the left button and zooms to it. A click zooms in at its place, a right
/// click or Escape goes back to picking.
class ReactorZoomRectTrans final : public ReactorBase
{
public:
    ReactorZoomRectTrans(const char* config, IMapWindow* map);

    int lButtonDown(const MouseKeyEventParameters& event) override;
    int mouseMove(const MouseKeyEventParameters& event) override;
    /// Ignores a release without a press.
    int lButtonUp(const MouseKeyEventParameters& event) override;
    int rButtonUp(const MouseKeyEventParameters& event) override;

private:
    void clearRectangle();

    bool m_isDragging = false;
    QPoint m_pressed; ///< screen pixels
    QPoint m_current;
};
