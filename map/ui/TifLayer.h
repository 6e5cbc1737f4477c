#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/ILayerItems.h"
#include "lum_desktop_sdkx/ILayerViewer.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "project/OverlayList.h"

#include <memory>
#include <mutex>
#include <vector>

class DlgOverviews;
class IDesktopHost;

namespace lum {
class RasterImage;
struct OverviewResult;
} // namespace lum

/// The overlay images of the open project under its points, registered as "TifLayer": any number of
/// raster files, each with an opacity.
///
/// The list is read when a project is opened, and each change goes into the project's description,
/// which the next save writes. Adding, removing and ordering mark the project as changed; showing,
/// hiding and opacity do not.
class TifLayer final : public ILayerViewer, public ILayerItems, private IEventHandler
{
public:
    /// \param config a key list: "visible" (default 1), and what the list of layers shows
    TifLayer(const char* config, IDesktopHost* host);
    ~TifLayer() override;

    /// What became of files that were to be added.
    struct Added
    {
        int count = 0;
        QStringList faults;     ///< why others were not, a sentence each
        QStringList large;      ///< those added that lack overviews
        bool isOutside = false; ///< all of them lie beside the survey, which has points
    };
    /// Puts images on top, in this order from the top. A file that is in the list already is shown
    /// and comes to the top. For an open project.
    Added addImages(QStringList paths);
    /// Builds the overviews of these images in the background, and tells how that went.
    void buildOverviews(const QStringList& paths);

    [[nodiscard]] std::string GetName() const override { return "TifLayer"; }
    /// The rectangle around the images that are shown.
    [[nodiscard]] QRectF GetExtent() const override;
    void SetTransform(const Transform* /*transform*/) override {}
    void preparePaint() override;
    void Paint(const PaintTarget& target, const QRectF& view, QPainter& painter) override;
    [[nodiscard]] IDictionary& GetProperties() override { return m_properties; }
    [[nodiscard]] bool IsVisible() const override;

    [[nodiscard]] int itemCount() const override { return static_cast<int>(m_images.size()); }
    [[nodiscard]] LayerItem item(int index) const override;
    void showItem(int index, bool isVisible) override;
    void setItemOpacity(int index, double opacity) override;
    void moveItem(int from, int to) override;
    void removeItem(int index) override;
    [[nodiscard]] QRectF itemExtent(int index) const override;
    [[nodiscard]] QVector<QPair<QString, QString>> itemProperties(int index) const override;
    /// Of an image that lacks overviews, to build them; of one that cannot be shown, to choose its
    /// file anew.
    [[nodiscard]] QStringList itemActions(int index) const override;
    void runItemAction(int index, int action) override;

private:
    struct Image
    {
        OverlayImage entry;
        std::shared_ptr<lum::RasterImage> raster; ///< shared with a running paint
        bool isFaultTold = false;
    };

    void handleEvent(const char* eventName, const char* payload, int reserved) override;
    void load();
    [[nodiscard]] bool doesMeetSurvey(const Image& image) const;
    void tellFaults();
    /// \param isEdited whether the project differs from its files by this
    void store(bool isEdited);
    void chooseFile(Image& image);
    void onOverviewsFinished(const QString& path, const lum::OverviewResult& result);
    void redraw() const;

    [[nodiscard]] Image& at(int index) { return m_images[static_cast<std::size_t>(index)]; }
    [[nodiscard]] const Image& at(int index) const
    {
        return m_images[static_cast<std::size_t>(index)];
    }
    [[nodiscard]] std::vector<Image>::iterator find(const QString& path);

    basalt::Dictionary m_properties;
    IDesktopHost& m_host;                      // outlives the layer
    std::vector<Image> m_images;               ///< from the top
    QString m_project;                         ///< the folder of the project that they belong to
    std::unique_ptr<DlgOverviews> m_overviews; ///< made when it is needed first
    EventSubscription m_subscription;

    std::mutex m_shownMutex;
    std::vector<Image> m_shown; ///< what the next paint shows, from the bottom
};
