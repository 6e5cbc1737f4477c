#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "views/tables/PointTableWindow.h"
#include "views/tables/SurveyHeaderMenu.h"

/// The survey results of one line, or of all lines, as a table of the columns that the user chose.
class SurveyDataTable final : public PointTableWindow
{
    Q_OBJECT

public:
    SurveyDataTable(const char* config, IDesktopHost* host);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    [[nodiscard]] bool isInProject(const PointName& point) const override;
    void zoomTo(const PointName& point) override;
    void addEntries(QMenu& menu) override;
    [[nodiscard]] QString exportTitle() const override;
    [[nodiscard]] Outcome exportPoints(const std::vector<PointName>& points,
                                       const QString& path) override;
    [[nodiscard]] QString emptyText() const override;
    void showSomething() override;
    /// Keeps the status key "isshow_allineiew".
    void linesChanged() override;

private:
    void refreshTexts();
    void widenAngles();
    void selectShown(const QString& lineNumber, const QString& pointNumber);
    void modify();
    void askToDelete();
    void announceChange();

    SurveyHeaderMenu m_headerMenu;
    EventSubscription m_subscription;
    EventSubscription m_otherSubscription;
    int m_degreeFormat = 0; ///< for which the columns of angles are wide enough
};
