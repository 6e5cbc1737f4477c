#pragma once

struct MouseKeyEventParameters;

/// A mouse handler of the map. Made with (configuration text, map window). The order of the
/// operations is fixed. Each answers non-zero when it has handled the event; otherwise the event
/// goes to the map's `ReactorDefault`, which is always there.
class IReactor
{
public:
    virtual ~IReactor() = default;

    virtual int lButtonDown(const MouseKeyEventParameters& event) = 0;
    virtual int lButtonUp(const MouseKeyEventParameters& event) = 0;
    virtual int rButtonDown(const MouseKeyEventParameters& event) = 0;
    virtual int rButtonUp(const MouseKeyEventParameters& event) = 0;
    virtual int mButtonDown(const MouseKeyEventParameters& event) = 0;
    virtual int mButtonUp(const MouseKeyEventParameters& event) = 0;
    virtual int dblClick(const MouseKeyEventParameters& event) = 0;
    virtual int mouseMove(const MouseKeyEventParameters& event) = 0;
    virtual int mouseWheel(const MouseKeyEventParameters& event) = 0;
    virtual int keyPress(const MouseKeyEventParameters& event) = 0;
    virtual int keyRelease(const MouseKeyEventParameters& event) = 0;
};
