#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "map/DesignMarks.h"
#include "map/PictureFrame.h"
#include "map/SurveyMarks.h"
#include "map/SurveyPicture.h"
#include "map/ui/IDataLayer.h"
#include "quality/colors/ResultColors.h"

#include <QTimer>

#include <memory>
#include <mutex>
#include <optional>

class ICoordTransformHelper;
class IDesktopHost;

/// The project's own data on the map, registered as "DataProcessLayer": the design picture or the
/// survey picture, by the system status "view_show_which".
///
/// It paints from a cache of its own for each picture. When one of its events arrives, the GUI
/// thread fills the cache of the picture in view from the data manager: it builds a new cache and
/// puts it in the place of the old one. A paint on the worker thread keeps the cache that it
/// started with, so that neither waits for the other. Picking and look-ups run on the GUI thread.
class DataProcessLayerImp final : public IDataLayer, private IEventHandler
{
public:
    /// \param config a key list: "visible" (default 1), and what the list of layers shows
    DataProcessLayerImp(const char* config, IDesktopHost* host);
    ~DataProcessLayerImp() override;

    [[nodiscard]] std::string GetName() const override;
    [[nodiscard]] QRectF GetExtent() const override { return m_extent; }
    void SetTransform(const Transform* transform) override { m_transform = transform; }
    /// Reads the spacings of the design, and what the user wants of the survey picture. Without
    /// spacings there is no design picture.
    void preparePaint() override;
    /// Publishes the progress after each line. It holds no lock while it paints or publishes.
    void Paint(const PaintTarget& target, const QRectF& view, QPainter& painter) override;
    [[nodiscard]] IDictionary& GetProperties() override { return m_properties; }
    [[nodiscard]] bool IsVisible() const override;

    /// The nearest result or base station within ten pixels. A station is called "base-0" and so
    /// on, in the user's language.
    [[nodiscard]] QString PickSurveyPoint(double x, double y) const override;
    [[nodiscard]] bool GetSurveyPoint(const QString& name, QString& line, QPointF& measured,
                                      QPointF& design) const override;
    /// The nearest design point within ten pixels.
    [[nodiscard]] QString PickDesignPoint(double x, double y) const override;
    [[nodiscard]] bool GetDesignPoint(const QString& name, QString& line,
                                      QPointF& position) const override;
    [[nodiscard]] bool GetBasePosition(int index, QPointF& position) const override;
    [[nodiscard]] bool GetBaseRecord(int index, BaseStation& record) const override;
    [[nodiscard]] bool hasMarkIn(const QRectF& map) const override;
    [[nodiscard]] std::optional<DrawnPoint> pointAt(const QPointF& map) const override;
    /// Line, number, kind and grid position of the point there, of the picture in view, and what
    /// its colour means; of a base station its label and position.
    [[nodiscard]] QString tipAt(const QPointF& map) const override;
    /// The colours of the survey picture.
    [[nodiscard]] lum::Legend legend() const override;

private:
    struct SurveyPick
    {
        std::optional<MarkTable::Nearest> mark; ///< the nearest result
        std::optional<std::size_t> base;        ///< a base station that is nearer than the result
    };

    void handleEvent(const char* eventName, const char* payload, int reserved) override;
    void rebuild();
    void rebuildDesign();
    void rebuildSurvey();
    void followLook();
    void handOverExtent();
    void clearOldHighlights();

    void paintDesignPicture(const PaintTarget& target, QPainter& painter);
    void paintSurveyPicture(const PaintTarget& target, QPainter& painter);
    [[nodiscard]] PictureFrame frameOf(const PaintTarget& target, const QString& caption) const;

    [[nodiscard]] QPointF toMap(double north, double east) const;
    [[nodiscard]] double reach() const;
    [[nodiscard]] GridPlace gridAt(const QPointF& map) const;
    [[nodiscard]] SurveyPick pickSurvey(const QPointF& map) const;
    [[nodiscard]] std::optional<MarkTable::Nearest> pickDesign(const QPointF& map) const;
    [[nodiscard]] QString designTip(const QPointF& map) const;
    [[nodiscard]] QString surveyTip(const QPointF& map) const;

    basalt::Dictionary m_properties;
    IDesktopHost& m_host; // outlives the layer
    ICoordTransformHelper& m_helper;
    const Transform* m_transform = nullptr; // the map's
    QRectF m_extent;
    std::string m_project; ///< the folder of the project whose points the overlays highlight
    std::string m_look;    ///< of the cached survey, see `surveyLook`
    std::string m_choice;  ///< the last one, see `surveyChoice`
    ResultColors m_colors; ///< of the cached survey
    lum::Legend m_legend;
    EventSubscription m_subscription;
    EventSubscription m_verdicts;
    QTimer m_verdictsTimer; ///< runs while the colours are older than the verdicts

    // A mutex guards the pointer behind it, for as long as it takes to copy or replace it. Nobody
    // changes a cache once it is here. Only the GUI thread replaces it, and reads it without a
    // lock.
    std::mutex m_surveyMutex;
    std::shared_ptr<const SurveyMarks> m_survey = std::make_shared<const SurveyMarks>();
    std::mutex m_designMutex;
    std::shared_ptr<const DesignMarks> m_design = std::make_shared<const DesignMarks>();

    std::mutex m_optionsMutex;
    std::optional<double> m_spacing; ///< the smallest of the design; nothing without spacings
    SurveyPictureOptions m_surveyOptions;
};
