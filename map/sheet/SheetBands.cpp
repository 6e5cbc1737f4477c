#include "map/sheet/SheetBands.h"

#include "lum_sdk/raster/Halo.h"
#include "map/PictureFrame.h"
#include "map/sheet/MapGround.h"
#include "map/sheet/MapSheet.h"
#include "map/sheet/SheetLayout.h"
#include "map/sheet/SheetText.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kHalo = 4; // pixels that a halo reaches from one band into the next

class BandPainter
{
public:
    BandPainter(const MapSheet& sheet, const SheetLayout& layout, SheetWatch& watch, int dots)
        : m_sheet(sheet), m_layout(layout), m_watch(watch), m_height(layout.map.height()),
          m_rows(std::clamp(dots / std::max(1, layout.map.width()), 1, m_height))
    {
    }

    [[nodiscard]] int rows() const { return m_rows; }

    /// \returns null when it was cancelled, or without enough memory
    [[nodiscard]] QImage paint(int row) const
    {
        const int rows = std::min(m_rows, m_height - row);
        if (m_sheet.ground->isEmpty()) {
            QImage band = blank(rows, QImage::Format_RGB32, Qt::white);
            if (!band.isNull())
                paintData(band, row);
            return isCancelled() ? QImage() : band;
        }
        const int margin = static_cast<int>(std::ceil(kHalo * m_layout.ratio));
        const int from = std::max(0, row - margin);
        const int end = std::min(m_height, row + rows + margin);
        QImage band = blank(end - from, QImage::Format_RGB32, Qt::white);
        QImage drawing = blank(end - from, QImage::Format_ARGB32_Premultiplied, Qt::transparent);
        if (band.isNull() || drawing.isNull())
            return {};
        m_sheet.ground->paint(m_layout.viewFrom(from, end - from), band, &m_watch.isCancelled);
        paintData(drawing, from);
        if (isCancelled())
            return {};
        lum::drawWithHalo(band, drawing, Qt::white);
        drawing = QImage();
        band.setDevicePixelRatio(1);
        return band.copy(0, row - from, band.width(), rows);
    }

private:
    [[nodiscard]] bool isCancelled() const { return m_watch.isCancelled; }

    [[nodiscard]] QImage blank(int rows, QImage::Format format, const QColor& color) const
    {
        QImage image(m_layout.map.width(), rows, format);
        image.setDevicePixelRatio(m_layout.ratio);
        image.fill(color);
        return image;
    }

    /// The data are painted for the whole map, so that names find the same room in every band.
    void paintData(QImage& band, int row) const
    {
        PictureFrame frame;
        frame.transform = m_layout.view;
        frame.drawingArea = QRectF(QPointF(0, 0), m_layout.frame.size());
        frame.isStopped = [this] { return isCancelled(); };
        frame.lineDone = [this, row](double percent) {
            const double rows = std::min(m_rows, m_height - row);
            m_watch.report((row * 100.0 + rows * percent) / m_height);
        };
        QPainter painter(&band);
        painter.setFont(sheetFont(sheettext::kName));
        painter.translate(0, -row / m_layout.ratio);
        m_sheet.drawing.paint(frame, painter);
    }

    const MapSheet& m_sheet;
    const SheetLayout& m_layout;
    SheetWatch& m_watch;
    int m_height;
    int m_rows;
};

} // namespace

bool paintBands(const MapSheet& sheet, const SheetLayout& layout, SheetWatch& watch,
                const std::function<bool(const QImage& band, int row)>& take, int dots)
{
    const BandPainter bands(sheet, layout, watch, dots);
    for (int row = 0; row < layout.map.height(); row += bands.rows()) {
        QImage band = bands.paint(row);
        band.setDevicePixelRatio(1);
        if (band.isNull() || !take(band, row))
            return false;
    }
    watch.report(100);
    return true;
}
