#pragma once

#include "lum_desktop_sdkx/ComponentKinds.h"
#include "lum_desktop_sdkx/IReactor.h"

#include <memory>
#include <vector>

class QString;

/// The mouse handlers of a map: at most one tool, over the standing `ReactorDefault`.
class ReactorStack
{
public:
    using Operation = int (IReactor::*)(const MouseKeyEventParameters&);
    enum class First
    {
        Tool,
        Standing
    };

    explicit ReactorStack(IMapWindow& map);
    ~ReactorStack();

    ReactorStack(const ReactorStack&) = delete;
    ReactorStack& operator=(const ReactorStack&) = delete;

    /// "ReactorDefault" ends the tool, any other registered name takes its place. A tool that is
    /// replaced from inside one of its own operations lives on until that has returned.
    /// \returns false, with the old one in place, when the name is not registered
    bool install(const QString& name);

    /// Gives an event to the one, and when that answers 0 to the other.
    /// \returns whether one of them has handled it
    bool dispatch(Operation operation, const MouseKeyEventParameters& event,
                  First first = First::Tool);

private:
    void replaceTool(IReactorFactory::Pointer tool);
    [[nodiscard]] bool toTool(Operation operation, const MouseKeyEventParameters& event);
    [[nodiscard]] bool toStanding(Operation operation, const MouseKeyEventParameters& event);

    IMapWindow& m_map;
    std::unique_ptr<IReactor> m_standing;
    IReactorFactory::Pointer m_tool{nullptr, nullptr};
    std::vector<IReactorFactory::Pointer> m_retired; ///< replaced while events were under way
    int m_eventsUnderWay = 0;                        ///< one inside the other
};
