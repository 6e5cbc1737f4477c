#include "map/DesignPicture.h"

#include "basalt_utilities/FixedDecimals.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/LineClip.h"
#include "map/CircleStamp.h"
#include "map/DesignMarks.h"
#include "map/LineSpan.h"
#include "map/NameWriter.h"
#include "map/PictureFrame.h"
#include "map/PolylineParts.h"
#include "map/WaitingNames.h"

#include <QLineF>
#include <QPainter>
#include <QVector>

#include <array>
#include <optional>
#include <string>

namespace {

constexpr int kRoomForPoints = 10; // logical pixels from point to point
constexpr int kRoomForLabels = 80;
constexpr double kRadius = 4;
constexpr double kLabelOffset = 10;
constexpr double kLineMargin = 8; // pixels: farther outside, a pen or circle cannot be seen
constexpr int kReceiver = 1;
constexpr int kSource = 0;

Qt::GlobalColor colorOf(int type)
{
    return type == kReceiver ? Qt::cyan : Qt::darkBlue;
}

class DesignPainter
{
public:
    DesignPainter(const DesignMarks& marks, const PictureFrame& frame,
                  const DesignPictureOptions& options, QPainter& painter)
        : m_design(marks), m_marks(marks.table()), m_frame(frame), m_options(options),
          m_painter(painter), m_names(painter.font()), m_parts(frame.screenArea(kLineMargin))
    {
        const double spacing = options.spacing / frame.transform.GetScale();
        m_showsPoints = spacing >= dpi_scaled(kRoomForPoints);
        m_showsLabels = m_showsPoints && spacing >= dpi_scaled(kRoomForLabels);
        // A label of two coordinates may be longer than any name.
        const double margin =
            kLineMargin + dpi_scaled(32) +
            m_names.reach(std::max(m_marks.longestName(), std::size_t(m_showsLabels ? 40 : 12)));
        m_screen = frame.screenArea(margin);
        m_area = frame.mapArea(margin);
    }

    void paint()
    {
        const auto& lines = m_marks.lines();
        for (std::size_t i = 0; i < lines.size() && !m_frame.isStopped(); ++i) {
            const int type = m_design.typeOf(i);
            if ((type == kReceiver && !m_options.showsReceiverLines) ||
                (type == kSource && !m_options.showsSourceLines))
                continue;
            if (lines[i].seen.touches(m_area)) {
                useColor(colorOf(type));
                paintLine(lines[i]);
            }
            m_frame.lineDone(static_cast<double>(i + 1) * 100.0 /
                             static_cast<double>(lines.size()));
        }
        flushSpans();
        m_waiting.write(m_painter, m_names, m_frame.screenArea(0), m_screen, m_frame.isStopped);
    }

private:
    /// Segments of one colour are collected and drawn together, since their order cannot be seen.
    /// Segments of another colour must come after them.
    void useColor(Qt::GlobalColor color)
    {
        if (m_color == color)
            return;
        flushSpans();
        m_color = color;
        m_painter.setPen(QColor(color));
        m_painter.setBrush(QColor(color));
        if (m_showsPoints)
            m_stamp.emplace(kRadius, QPen(QColor(color)), QColor(color),
                            m_painter.device()->devicePixelRatioF());
    }

    void flushSpans()
    {
        m_painter.drawLines(m_spans);
        m_spans.clear();
    }

    void paintLine(const MarkTable::Line& line)
    {
        writeNumber(line);
        if (!m_showsPoints) {
            const QLineF span = lineSpan(m_marks, line, m_frame.transform, m_frame.drawingArea);
            if (const auto seen = clippedLine(span, m_frame.screenArea(kLineMargin)))
                m_spans.append(*seen);
            return;
        }
        m_parts.clear();
        for (MarkTable::Index i = line.firstBlock; i < line.endBlock && !m_frame.isStopped(); ++i)
            paintBlock(line, m_marks.block(i));
        for (const QPolygonF& part : m_parts.parts())
            m_painter.drawPolyline(part);
    }

    void writeNumber(const MarkTable::Line& line)
    {
        const QPointF place =
            screenOf(m_marks.firstOf(line)) + QPointF(dpi_scaled(-32), dpi_scaled(5));
        if (!m_options.numbersNeedRoom)
            write(place, line.number);
        else if (m_screen.contains(place))
            m_waiting.add(
                {place, line.number, m_color == colorOf(kReceiver) ? &m_receiver : &m_source});
    }

    /// The block's marks, and the line from each of them to the next.
    void paintBlock(const MarkTable::Line& line, const MarkTable::Block& block)
    {
        Bounds seen = block.seen;
        if (block.end < m_marks.endOf(line))
            seen.add(m_marks.place(block.end));
        if (!seen.touches(m_area))
            return;
        m_parts.moveTo(screenOf(block.first));
        for (MarkTable::Index mark = block.first; mark < block.end; ++mark) {
            const QPointF place = screenOf(mark);
            if (mark != block.first)
                m_parts.lineTo(place);
            if (m_screen.contains(place) && m_frame.drawingArea.contains(place))
                paintMark(mark, place);
        }
        if (block.end < m_marks.endOf(line))
            m_parts.lineTo(screenOf(block.end));
    }

    void paintMark(MarkTable::Index mark, const QPointF& place)
    {
        m_stamp->draw(m_painter, place);
        if (!m_showsLabels)
            return;
        write(place + QPointF(0, -kLabelOffset), m_marks.name(mark));
        const GridPlace& grid = m_marks.grid(mark);
        std::array<char, basalt::kFixedSize> number{};
        const auto fixed = [&](double value) {
            return std::string_view(
                number.data(), static_cast<std::size_t>(
                                   basalt::writeFixed(number.data(), value, 1) - number.data()));
        };
        std::string text = "(";
        text.append(fixed(grid.north)).append(", ");
        text.append(fixed(grid.east)).append(")");
        write(place + QPointF(0, kLabelOffset), text);
    }

    void write(const QPointF& baseline, std::string_view text)
    {
        if (m_screen.contains(baseline))
            m_names.write(m_painter, baseline, text);
    }

    [[nodiscard]] QPointF screenOf(MarkTable::Index mark) const
    {
        return m_frame.transform.SurveyToScreen(m_marks.place(mark));
    }

    const DesignMarks& m_design;
    const MarkTable& m_marks;
    const PictureFrame& m_frame;
    const DesignPictureOptions& m_options;
    QPainter& m_painter;
    NameWriter m_names;
    WaitingNames m_waiting;
    const QPen m_receiver{QColor(colorOf(kReceiver))};
    const QPen m_source{QColor(colorOf(kSource))};
    PolylineParts m_parts;
    QVector<QLineF> m_spans; ///< of the current colour, not drawn yet
    std::optional<CircleStamp> m_stamp;
    std::optional<Qt::GlobalColor> m_color;
    bool m_showsPoints = false;
    bool m_showsLabels = false;
    QRectF m_screen; ///< nothing that starts outside it can be seen, screen pixels
    QRectF m_area;   ///< the same in map coordinates
};

} // namespace

void paintDesign(const DesignMarks& marks, const PictureFrame& frame,
                 const DesignPictureOptions& options, QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    DesignPainter(marks, frame, options, painter).paint();
}

QColor designColor(int type)
{
    return colorOf(type);
}
