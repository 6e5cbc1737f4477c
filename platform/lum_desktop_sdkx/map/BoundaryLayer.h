#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/ILayerViewer.h"

class IDesktopHost;

/// The survey boundary: a dashed rectangle around the full extent of the map's data, its corners
/// labelled with their coordinates while there is room for it. Shown while the system status
/// "draw_boundary_rect" is 1.
class BoundaryLayer final : public ILayerViewer
{
public:
    /// \param config a key list: "layer_name" (default "BoundaryLayer"), "visible"
    BoundaryLayer(const char* config, IDesktopHost* host);

    [[nodiscard]] std::string GetName() const override;
    /// Null: it adds nothing to what the other layers cover.
    [[nodiscard]] QRectF GetExtent() const override { return {}; }
    void SetTransform(const Transform* transform) override;
    void Paint(const PaintTarget& target, const QRectF& view, QPainter& painter) override;
    [[nodiscard]] IDictionary& GetProperties() override { return m_properties; }
    [[nodiscard]] bool IsVisible() const override;

private:
    basalt::Dictionary m_properties;
};
