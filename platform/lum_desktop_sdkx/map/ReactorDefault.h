#pragma once

#include "lum_desktop_sdkx/ReactorBase.h"

#include <QPoint>

/// What mouse and keyboard do on every map, under any tool: the wheel zooms about the cursor, the
/// middle button pans, the arrow keys pan by a tenth of the view (with Shift by half of it), + and
/// - zoom, Home shows everything.
class ReactorDefault final : public ReactorBase
{
public:
    ReactorDefault(const char* config, IMapWindow* map);
    ~ReactorDefault() override;

    ReactorDefault(const ReactorDefault&) = delete;
    ReactorDefault& operator=(const ReactorDefault&) = delete;

    /// Does nothing, since there is no tool to end.
    int rButtonUp(const MouseKeyEventParameters& event) override;
    int mButtonDown(const MouseKeyEventParameters& event) override;
    int mButtonUp(const MouseKeyEventParameters& event) override;
    int mouseMove(const MouseKeyEventParameters& event) override;
    int mouseWheel(const MouseKeyEventParameters& event) override;
    int keyPress(const MouseKeyEventParameters& event) override;

private:
    void endDrag();
    /// Moves the view by one step to the right and down.
    /// \param right,down -1, 0 or 1
    void panView(int right, int down, bool isFar);

    bool m_isDragging = false;
    QPoint m_last; ///< screen pixels
};
