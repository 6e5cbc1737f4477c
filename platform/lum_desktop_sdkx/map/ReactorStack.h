#pragma once

#include "lum_desktop_sdkx/ComponentKinds.h"
#include "lum_desktop_sdkx/IReactor.h"

#include <memory>
#include <vector>

class QString;

/// The mouse handlers of a map: the standing `ReactorDefault`, and at most one tool.
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

    /// Makes a registered reactor the tool. "ReactorDefault" only ends the tool in use. A tool that
    /// replaces itself in one of its own operations is deleted after that operation has returned.
    /// \returns false, and keeps the old tool, when the name is not registered
    bool install(const QString& name);

    /// Gives an event to the handler named by `first`. When that answers 0, the other one gets it.
    /// \returns true when one of them has handled it
    bool dispatch(Operation operation, const MouseKeyEventParameters& event,
                  First first = First::Tool);

private:
    void replaceTool(IReactorFactory::Pointer tool);
    [[nodiscard]] bool toTool(Operation operation, const MouseKeyEventParameters& event);
    [[nodiscard]] bool toStanding(Operation operation, const MouseKeyEventParameters& event);

    IMapWindow& m_map;
    std::unique_ptr<IReactor> m_standing;
    IReactorFactory::Pointer m_tool{nullptr, nullptr};
    std::vector<IReactorFactory::Pointer> m_retired; ///< tools that were replaced during an event
    int m_eventsUnderWay = 0;                        ///< more than 1 for an event inside an event
};
