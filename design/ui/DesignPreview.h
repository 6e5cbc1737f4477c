#pragma once

#include "design/DesignGrid.h"

#include <QRectF>

#include <vector>

class IDesktopHost;
class IMapWindow;

/// Shows grids on the map "DataMap" before they are generated, in the colours that their points
/// will have: the outline, the first and the last line, an arrow where the numbers of the points
/// grow and one where those of the lines do. It is drawn in overlay 1, under the mark of the
/// selected point.
class DesignPreview
{
public:
    explicit DesignPreview(IDesktopHost& host) : m_host(host) {}

    /// Shows these grids in place of the present ones; a grid without points is not shown.
    void show(const std::vector<DesignGrid>& grids);
    void clear() { show({}); }

    /// Moves and zooms the map so that the first grid is seen beside the windows over the map.
    void bringIntoView();
    /// Whether the whole first grid is seen so; true without any.
    [[nodiscard]] bool isInView() const;

private:
    [[nodiscard]] IMapWindow* map() const;

    IDesktopHost& m_host; // outlives the dialogs
    QRectF m_extent;      ///< of the first grid, map coordinates; null without any
};
