#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "model/PointName.h"

class IDesktopHost;
class IDictionary;

/// Shows what was selected in one window in all the others: the row of the table, the line of the
/// tree and the mark on the map. There is one selection: a table in which it is not has no selected
/// row. A table comes to the front of its tabs unless it would cover the map, or the list of
/// problems or the statistics while these are in front: so one goes from problem to problem.
/// Nothing is opened, and the focus stays where it is.
///
/// A selection of a point that the project does not have is passed over. The mark of a point that
/// was deleted goes with the next refresh of the layers.
class SelectionFollower final : public IEventHandler
{
public:
    explicit SelectionFollower(IDesktopHost& host);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    enum class Points
    {
        None,
        Survey,
        Design
    };

    void follow(const char* eventName, const IDictionary& names);
    void remember(Points points, const PointName& name);
    void clearLostMark();

    IDesktopHost& m_host;           // outlives the follower
    bool m_isFollowing = false;     ///< the events of this time are its own doing
    Points m_marked = Points::None; ///< where the point on the map that was marked last is from
    PointName m_markedName;
    EventSubscription m_subscription;
};
