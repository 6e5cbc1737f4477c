#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "model/PointName.h"

#include <QWidget>

#include <optional>

class AttributePage;
class IDesktopHost;
class QLabel;
class QStackedWidget;
struct SurveyPoint;

/// All attributes of the point that was selected last: a survey result, a design point or a base
/// station. What an office may correct can be edited, and is written at once. The panel follows
/// changes of the point, and shows none when the point is gone.
class AttributeControl final : public QWidget, public IWindowx, public IEventHandler
{
    Q_OBJECT

public:
    AttributeControl(const char* config, IDesktopHost* host);
    ~AttributeControl() override;

    [[nodiscard]] QWidget* widget() override { return this; }
    [[nodiscard]] IDictionary& parameters() override { return m_parameters; }
    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    enum class Kind
    {
        None,
        Survey,
        Design,
        Station
    };
    struct Shown
    {
        Kind kind = Kind::None;
        PointName point; ///< of a result or a design point
        int station = 0; ///< of a base station, from 0

        friend bool operator==(const Shown&, const Shown&) = default;
    };

    void select(const Shown& point);
    void refresh();
    void refreshLater();
    [[nodiscard]] AttributePage* page(Kind kind) const;
    [[nodiscard]] std::optional<basalt::Dictionary> values() const;
    [[nodiscard]] std::optional<basalt::Dictionary> stationValues() const;
    void writeUnits();
    void writeNotes();

    void showHistory();
    void editSurvey(const QString& key, const QString& value);
    void editDesign(const QString& key, const QString& value);
    void noteMove(const SurveyPoint& point, double elevationBefore);

    IDesktopHost& m_host; // outlives every window
    basalt::Dictionary m_parameters;
    EventSubscription m_selections;
    EventSubscription m_changes;
    QStackedWidget* m_pages;
    QLabel* m_empty;
    AttributePage* m_survey;
    AttributePage* m_design;
    AttributePage* m_station;
    Shown m_shown;
    bool m_movesHeights = true;
    bool m_isRefreshDue = false;
    QString m_antennaNote;        ///< what the last corrected antenna height has done
    double m_notedElevationM = 0; ///< to this elevation
};
