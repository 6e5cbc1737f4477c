#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "views/tables/PointTableWindow.h"

/// The design points of one line as a table.
class DesignLineTable final : public PointTableWindow
{
    Q_OBJECT

public:
    DesignLineTable(const char* config, IDesktopHost* host);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    [[nodiscard]] bool isInProject(const PointName& point) const override;
    void zoomTo(const PointName& point) override;
    void addEntries(QMenu& menu) override;
    [[nodiscard]] QString exportTitle() const override;
    /// Writes the cells as they are shown, but type and status as numbers.
    [[nodiscard]] Outcome exportPoints(const std::vector<PointName>& points,
                                       const QString& path) override;
    [[nodiscard]] QString emptyText() const override;
    void showSomething() override;

private:
    EventSubscription m_subscription;
    EventSubscription m_projectSubscription;
};
