#pragma once

#include "lum_desktop_sdkx/ReactorBase.h"

#include <QPoint>

/// What the mouse and the keyboard do on every map, whatever the tool: the wheel zooms about the
/// cursor, the middle button pans, the arrow keys pan by a tenth of the view (by half of it with
/// Shift), + and - zoom, Home shows everything.
class ReactorDefault final : public ReactorBase
{
public:
    ReactorDefault(const char* config, IMapWindow* map);
    ~ReactorDefault() override;

    ReactorDefault(const ReactorDefault&) = delete;
    ReactorDefault& operator=(const ReactorDefault&) = delete;

    /// Nothing: there is no tool to end.
    int rButtonUp(const MouseKeyEventParameters& event) override;
    int mButtonDown(const MouseKeyEventParameters& event) override;
    int mButtonUp(const MouseKeyEventParameters& event) override;
    int mouseMove(const MouseKeyEventParameters& event) override;
    int mouseWheel(const MouseKeyEventParameters& event) override;
    int keyPress(const MouseKeyEventParameters& event) override;

private:
    void endDrag();
    /// Shows what lies `right` and `down` (-1, 0, 1) of the view.
    void panView(int right, int down, bool isFar);

    bool m_isDragging = false;
    QPoint m_last; ///< screen pixels
};
