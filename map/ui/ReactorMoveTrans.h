#pragma once

#include "lum_desktop_sdkx/ReactorBase.h"

#include <QPoint>

/// Drags the map with the left button; a right click or Escape goes back to picking.
class ReactorMoveTrans final : public ReactorBase
{
public:
    ReactorMoveTrans(const char* config, IMapWindow* map);

    int lButtonDown(const MouseKeyEventParameters& event) override;
    int mouseMove(const MouseKeyEventParameters& event) override;
    int lButtonUp(const MouseKeyEventParameters& event) override;
    int rButtonUp(const MouseKeyEventParameters& event) override;

private:
    bool m_isDragging = false;
    QPointF m_last;   ///< where the last step ended, screen pixels
    QPoint m_pressed; ///< where the drag began, screen pixels
};
