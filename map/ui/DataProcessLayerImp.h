#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "map/DesignMarks.h"
#include "map/PictureFrame.h"
#include "map/SurveyMarks.h"
#include "map/ui/IDataLayer.h"

#include <atomic>
#include <mutex>
#include <optional>

class ICoordTransformHelper;
class IDesktopHost;

/// The project's own data on the map, registered as "DataProcessLayer": the design picture or the
/// survey picture, by the system status "view_show_which".
///
/// It paints from caches of its own, filled from the data manager on the GUI thread whenever one of
/// its events arrives; of the two only the one in view. Picking and look-ups belong to the GUI
/// thread, too.
class DataProcessLayerImp final : public IDataLayer, private IEventHandler
{
public:
    /// \param config a key list: "visible" (default 1), and what the list of layers shows
    DataProcessLayerImp(const char* config, IDesktopHost* host);
    ~DataProcessLayerImp() override;

    [[nodiscard]] std::string GetName() const override;
    [[nodiscard]] QRectF GetExtent() const override { return m_extent; }
    void SetTransform(const Transform* transform) override { m_transform = transform; }
    /// Reads the screen, and the spacings of the design; without those it has no picture.
    void preparePaint() override;
    /// Tells the status bar of each line. Gives up when the caches are about to change.
    void Paint(const PaintTarget& target, const QRectF& view, QPainter& painter) override;
    [[nodiscard]] IDictionary& GetProperties() override { return m_properties; }
    [[nodiscard]] bool IsVisible() const override;

    /// The nearest result or base station within ten pixels; a station as "base-0" and so on, in
    /// the user's language.
    [[nodiscard]] QString PickSurveyPoint(double x, double y) const override;
    [[nodiscard]] bool GetSurveyPoint(const QString& name, QString& line, QPointF& measured,
                                      QPointF& design) const override;
    /// The nearest design point within ten pixels.
    [[nodiscard]] QString PickDesignPoint(double x, double y) const override;
    [[nodiscard]] bool GetDesignPoint(const QString& name, QString& line,
                                      QPointF& position) const override;
    [[nodiscard]] bool GetBasePosition(int index, QPointF& position) const override;
    [[nodiscard]] bool GetBaseRecord(int index, BaseStation& record) const override;
    /// The name of the point in view; of a base station its label.
    [[nodiscard]] QString tipAt(const QPointF& map) const override;

private:
    /// What a paint needs of the GUI thread.
    struct Surroundings
    {
        QRectF drawingArea{0, 0, 1920, 1080};
        std::optional<double> spacingM; ///< the smallest one; none without a design
    };
    struct SurveyPick
    {
        std::optional<MarkTable::Nearest> mark; ///< the result that is nearest
        std::optional<std::size_t> base;        ///< the station that is nearer
    };

    void handleEvent(const char* eventName, const char* payload, int reserved) override;
    void rebuild();
    void rebuildDesign();
    void rebuildSurvey();
    void handOverExtent();
    void dropForeignMarks();

    void paintDesignPicture(const PaintTarget& target, const Surroundings& surroundings,
                            QPainter& painter);
    void paintSurveyPicture(const PaintTarget& target, const Surroundings& surroundings,
                            QPainter& painter);
    [[nodiscard]] PictureFrame frameOf(const PaintTarget& target, const Surroundings& surroundings,
                                       const QString& caption) const;

    [[nodiscard]] QPointF toMap(double north, double east) const;
    [[nodiscard]] double reachM() const;
    [[nodiscard]] GridPlace gridAt(const QPointF& map) const;
    [[nodiscard]] SurveyPick pickSurvey(const QPointF& map) const;
    [[nodiscard]] std::optional<MarkTable::Nearest> pickDesign(const QPointF& map) const;

    basalt::Dictionary m_properties;
    IDesktopHost& m_host; // outlives the layer
    ICoordTransformHelper& m_helper;
    const Transform* m_transform = nullptr; // the map's
    QRectF m_extent;
    std::string m_project; ///< the folder of the project that the map's overlays mark
    EventSubscription m_subscription;

    // A rebuild changes a cache under its mutex, a paint reads it under the same.
    std::mutex m_surveyMutex;
    std::mutex m_designMutex;
    SurveyMarks m_survey;
    DesignMarks m_design;
    std::atomic<bool> m_isRebuildDue = false; ///< what is being painted is of the past

    std::mutex m_surroundingsMutex;
    Surroundings m_surroundings;
};
