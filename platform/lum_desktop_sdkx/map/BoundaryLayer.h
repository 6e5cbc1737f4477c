#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/ILayerViewer.h"

class IDesktopHost;

/// The boundary: a dashed rectangle around the full extent of the map's data. Its corners are
/// labelled with their coordinates where there is room. Shown while the system status
/// "draw_boundary_rect" is 1.
class BoundaryLayer final : public ILayerViewer
{
public:
    /// \param config a key list: "layer_name" (default "BoundaryLayer"), "visible"
    BoundaryLayer(const char* config, IDesktopHost* host);

    [[nodiscard]] std::string GetName() const override;
    /// Always null, since the boundary adds nothing to the extent of the other layers.
    [[nodiscard]] QRectF GetExtent() const override { return {}; }
    void SetTransform(const Transform* transform) override;
    void Paint(const PaintTarget& target, const QRectF& view, QPainter& painter) override;
    [[nodiscard]] IDictionary& GetProperties() override { return m_properties; }
    [[nodiscard]] bool IsVisible() const override;

private:
    basalt::Dictionary m_properties;
};
