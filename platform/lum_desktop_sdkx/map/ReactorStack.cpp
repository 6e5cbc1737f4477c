#include "lum_desktop_sdkx/map/ReactorStack.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/map/ReactorDefault.h"

#include <QString>

#include <utility>

ReactorStack::ReactorStack(IMapWindow& map)
    : m_map(map), m_standing(std::make_unique<ReactorDefault>("", &map))
{
}

ReactorStack::~ReactorStack() = default;

bool ReactorStack::install(const QString& name)
{
    if (name == QLatin1String("ReactorDefault")) {
        replaceTool({nullptr, nullptr});
        return true;
    }
    auto tool = extensible_factory_IReactor().make(name.toStdString(), "", &m_map);
    if (!tool)
        return false;
    replaceTool(std::move(tool));
    return true;
}

void ReactorStack::replaceTool(IReactorFactory::Pointer tool)
{
    auto old = std::exchange(m_tool, std::move(tool));
    if (old && m_eventsUnderWay > 0)
        m_retired.push_back(std::move(old));
}

bool ReactorStack::dispatch(Operation operation, const MouseKeyEventParameters& event, First first)
{
    ++m_eventsUnderWay;
    bool isHandled = true;
    try {
        isHandled = first == First::Tool ? toTool(operation, event) || toStanding(operation, event)
                                         : toStanding(operation, event) || toTool(operation, event);
    } catch (const std::exception& fault) {
        basalt::logError(std::string("A mouse handler failed: ") + fault.what());
    }
    if (--m_eventsUnderWay == 0)
        std::exchange(m_retired, {}).clear();
    return isHandled;
}

bool ReactorStack::toTool(Operation operation, const MouseKeyEventParameters& event)
{
    return m_tool && (m_tool.get()->*operation)(event) != 0;
}

bool ReactorStack::toStanding(Operation operation, const MouseKeyEventParameters& event)
{
    return (m_standing.get()->*operation)(event) != 0;
}
