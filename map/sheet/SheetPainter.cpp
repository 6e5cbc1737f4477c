#include "map/sheet/SheetPainter.h"

#include "lum_sdk/raster/Attribution.h"
#include "lum_sdk/raster/Legend.h"
#include "lum_sdk/raster/NorthArrow.h"
#include "lum_sdk/raster/ScaleBar.h"
#include "map/sheet/MapGround.h"
#include "map/sheet/MapSheet.h"
#include "map/sheet/SheetGrid.h"
#include "map/sheet/SheetLayout.h"
#include "map/sheet/SheetText.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

// pixels on A4
constexpr double kFrameLine = 1.3;
constexpr double kThinLine = 0.7;
constexpr double kTick = 5;
constexpr double kCross = 5; // half of it

class FramePainter
{
public:
    FramePainter(QPainter& painter, const MapSheet& sheet, const SheetLayout& layout)
        : m_painter(painter), m_sheet(sheet), m_layout(layout), m_type(layout.typeScale),
          m_grid(layout, sheet.setup)
    {
    }

    void draw()
    {
        drawCrosses();
        drawCorners();
        m_painter.setBrush(Qt::NoBrush);
        setPen(kFrameLine);
        m_painter.drawRect(m_layout.frame);
        drawEastings();
        drawNorthings();
        drawTitle();
        for (const SheetLayout::Field& field : m_layout.fields)
            drawField(field);
    }

private:
    void setPen(double width, const QColor& color = Qt::black)
    {
        m_painter.setPen(QPen(color, width * m_type, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    }

    void drawCrosses()
    {
        setPen(kThinLine, QColor(0x50, 0x50, 0x50));
        m_painter.save();
        m_painter.setClipRect(m_layout.frame);
        const double arm = kCross * m_type;
        for (const SheetGrid::Line& easting : m_grid.eastings) {
            for (const SheetGrid::Line& northing : m_grid.northings) {
                const QPointF middle =
                    m_layout.frame.topLeft() + QPointF(easting.place, northing.place);
                m_painter.drawLine(middle - QPointF(arm, 0), middle + QPointF(arm, 0));
                m_painter.drawLine(middle - QPointF(0, arm), middle + QPointF(0, arm));
            }
        }
        m_painter.restore();
    }

    /// What stands in the corners of every map of this program, in their size for this paper.
    void drawCorners()
    {
        Transform corners = m_layout.view;
        const QSizeF size = m_layout.frame.size() / m_type;
        corners.setSize(QSize(static_cast<int>(size.width()), static_cast<int>(size.height())));
        corners.setView(corners.center(), m_layout.view.GetScale() * m_type);
        m_painter.save();
        m_painter.translate(m_layout.frame.topLeft());
        m_painter.scale(m_type, m_type);
        m_painter.setFont(sheetFont(sheettext::kCorner));
        const QRect bar = lum::drawScaleBar(m_painter, corners, m_sheet.setup.unit);
        lum::drawNorthArrow(m_painter, corners);
        lum::drawLegend(m_painter, corners.size(), m_sheet.drawing.legend);
        lum::drawAttribution(m_painter, corners.size(), m_sheet.ground->attribution(), bar);
        m_painter.restore();
    }

    /// Beginning or end of a label with this middle, between the ends of its side; nothing when it
    /// would stand beside the map.
    [[nodiscard]] bool fits(double middle, double length, double side) const
    {
        return middle - length / 2 >= 0 && middle + length / 2 <= side;
    }

    void drawEastings()
    {
        const QFont font = sheetFont(sheettext::kLabel * m_type);
        const QFontMetricsF metrics(font);
        const double tick = kTick * m_type;
        m_painter.setFont(font);
        setPen(kThinLine);
        for (const SheetGrid::Line& line : m_grid.eastings) {
            const double x = m_layout.frame.left() + line.place;
            const double top = m_layout.frame.top();
            const double bottom = m_layout.frame.bottom();
            m_painter.drawLine(QPointF(x, top - tick), QPointF(x, top));
            m_painter.drawLine(QPointF(x, bottom), QPointF(x, bottom + tick));
            const double width = metrics.horizontalAdvance(line.label);
            if (!fits(line.place, width, m_layout.frame.width()))
                continue;
            m_painter.drawText(QPointF(x - width / 2, top - tick - metrics.descent()), line.label);
            m_painter.drawText(QPointF(x - width / 2, bottom + tick + metrics.ascent()),
                               line.label);
        }
    }

    void drawNorthings()
    {
        const QFont font = sheetFont(sheettext::kLabel * m_type);
        const QFontMetricsF metrics(font);
        const double tick = kTick * m_type;
        for (const SheetGrid::Line& line : m_grid.northings) {
            const double y = m_layout.frame.top() + line.place;
            const double left = m_layout.frame.left();
            const double right = m_layout.frame.right();
            m_painter.drawLine(QPointF(left - tick, y), QPointF(left, y));
            m_painter.drawLine(QPointF(right, y), QPointF(right + tick, y));
            const double width = metrics.horizontalAdvance(line.label);
            if (!fits(line.place, width, m_layout.frame.height()))
                continue;
            drawUpwards(QPointF(left - tick - metrics.descent(), y + width / 2), line.label);
            drawUpwards(QPointF(right + tick + metrics.ascent(), y + width / 2), line.label);
        }
    }

    void drawUpwards(const QPointF& baseline, const QString& text)
    {
        m_painter.save();
        m_painter.translate(baseline);
        m_painter.rotate(-90);
        m_painter.drawText(QPointF(0, 0), text);
        m_painter.restore();
    }

    void drawTitle()
    {
        m_painter.setFont(sheetFont(sheettext::kTitle * m_type, true));
        setPen(kThinLine);
        const double height = QFontMetricsF(m_painter.font()).lineSpacing();
        QRectF place = m_layout.titlePlace;
        place.setHeight(height);
        for (const QString& line : m_layout.title) {
            m_painter.drawText(place, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextSingleLine,
                               line);
            place.translate(0, height);
        }
    }

    void drawField(const SheetLayout::Field& field)
    {
        setPen(kThinLine);
        m_painter.drawRect(field.place);
        QPointF corner = field.place.topLeft() + QPointF(m_layout.padding, m_layout.padding);
        const auto write = [&](const QFont& font, const QColor& color, const QString& text) {
            const QFontMetricsF metrics(font);
            m_painter.setFont(font);
            m_painter.setPen(color);
            m_painter.drawText(corner + QPointF(0, metrics.ascent()), text);
            corner += QPointF(0, metrics.lineSpacing());
        };
        write(sheetFont(sheettext::kCaption * m_type), QColor(0x60, 0x60, 0x60), field.caption);
        for (const QString& line : field.lines)
            write(sheetFont(sheettext::kField * m_type), Qt::black, line);
    }

    QPainter& m_painter;
    const MapSheet& m_sheet;
    const SheetLayout& m_layout;
    double m_type;
    SheetGrid m_grid;
};

} // namespace

void drawSheetFrame(QPainter& painter, const MapSheet& sheet, const SheetLayout& layout)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    FramePainter(painter, sheet, layout).draw();
    painter.restore();
}
