#include "map/SurveyPicture.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/LineClip.h"
#include "map/CircleStamp.h"
#include "map/NameWriter.h"
#include "map/PictureFrame.h"
#include "map/SurveyMarks.h"
#include "map/ThinLine.h"
#include "map/WaitingNames.h"

#include <QPainter>
#include <QString>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kRadius = 2;
constexpr double kColoredRadius = 3;
constexpr double kLineMargin = 8; // pixels: farther outside, a pen or circle cannot be seen
constexpr double kDashes = 6;     // pixels after which a dashed pen repeats
constexpr double kHidden = 1.5;   // pixels: a shorter line lies under the circle at its end

constexpr std::size_t kMarksAtOnce = 1024;

using Names = SurveyPictureOptions::Names;

/// A base station on the screen.
struct ScreenBase
{
    QPointF place;
    bool isInside = false; ///< of the drawing area
    std::string label;     ///< empty until it is written
};

/// The colours of all but the classes of results.
struct Look
{
    QColor toBase;
    QColor toDesign;
    QColor base;
    QColor lineName;
    QColor name;
};

const Look& lookOf(bool hasColors)
{
    static const Look kPlain{Qt::green, Qt::cyan, Qt::blue, Qt::red, Qt::red};
    static const Look kGrey{QColor(0xd0, 0xd0, 0xd0), QColor(0x8c, 0x8c, 0x8c), Qt::black,
                            Qt::black, QColor(0x40, 0x40, 0x40)};
    return hasColors ? kGrey : kPlain;
}

/// How the circle around a design position is filled: with the brush of what was drawn before it,
/// red for a result or a line number, blue for a base station.
enum Filling : std::size_t
{
    Hollow,
    Red,
    Blue
};

class SurveyPainter
{
public:
    SurveyPainter(const SurveyMarks& marks, const PictureFrame& frame, const QString& baseWord,
                  QPainter& painter, const SurveyPictureOptions& options)
        : m_survey(marks), m_marks(marks.table()), m_frame(frame), m_baseWord(baseWord),
          m_painter(painter), m_options(options), m_names(painter.font()),
          m_look(lookOf(!marks.colors().empty())), m_ratio(painter.device()->devicePixelRatioF()),
          m_edge(frame.screenArea(1)), m_lineArea(frame.screenArea(kLineMargin))
    {
        const std::size_t longest = std::max<std::size_t>(m_marks.longestName(), 24);
        const double margin = kLineMargin + dpi_scaled(30) + m_names.reach(longest);
        m_screen = frame.screenArea(margin);
        m_area = frame.mapArea(margin);
        m_colored.resize(marks.colors().size());
        for (const QPointF& map : marks.basePlaces()) {
            ScreenBase base;
            base.place = frame.transform.SurveyToScreen(map);
            base.isInside = isInside(base.place);
            m_bases.push_back(base);
        }
    }

    void paint()
    {
        const auto& lines = m_marks.lines();
        for (std::size_t i = 0; i < lines.size() && !m_frame.isStopped(); ++i) {
            paintLine(lines[i]);
            m_frame.lineDone(static_cast<double>(i + 1) * 100.0 /
                             static_cast<double>(lines.size()));
        }
        paintColored();
        m_waiting.write(m_painter, m_names, m_frame.screenArea(0), m_screen, m_frame.isStopped);
    }

private:
    void paintLine(const MarkTable::Line& line)
    {
        const MarkTable::Index labelled = m_marks.firstOf(line);
        for (MarkTable::Index i = line.firstBlock; i < line.endBlock; ++i) {
            const MarkTable::Block& block = m_marks.block(i);
            if (m_frame.isStopped())
                return;
            if (!block.seen.touches(m_area)) {
                passOver(block, labelled);
                continue;
            }
            for (MarkTable::Index mark = block.first; mark < block.end; ++mark) {
                paintMark(mark);
                if (mark == labelled)
                    paintLineLabel(line);
            }
        }
    }

    /// Skips a block out of sight. It still decides the brush for the next design position.
    void passOver(const MarkTable::Block& block, MarkTable::Index labelled)
    {
        for (MarkTable::Index mark = block.end; mark-- > block.first;) {
            const bool hasBase = m_bases[m_survey.ties(mark).base].isInside;
            if (mark == labelled || (!hasBase && isInside(screenOf(m_marks.place(mark)))))
                m_filling = Red;
            else if (hasBase)
                m_filling = Blue;
            else
                continue;
            return;
        }
    }

    void paintMark(MarkTable::Index mark)
    {
        const SurveyMarks::Ties& ties = m_survey.ties(mark);
        const QPointF measured = screenOf(m_marks.place(mark));
        const bool isShown = isInside(measured);
        if (m_options.showsBaseTies)
            drawToBase({measured, m_bases[ties.base].place});
        if (ties.hasDesign && m_options.showsOffsets)
            paintDesignPlace(measured, screenOf(ties.design), isShown);
        if (isShown) {
            m_filling = Red;
            if (m_screen.contains(measured))
                paintResult(mark, measured);
        }
        if (m_bases[ties.base].isInside)
            paintBase(ties.base);
    }

    void paintResult(MarkTable::Index mark, const QPointF& place)
    {
        const bool isColored = !m_colored.empty();
        const std::uint32_t rank = isColored ? 1U + m_survey.classOf(mark) : 1U;
        const double radius = isColored ? kColoredRadius : kRadius;
        if (isColored)
            m_colored[m_survey.classOf(mark)].push_back(place);
        else
            m_measured.draw(m_painter, place);
        if (m_options.names == Names::WithRoom)
            m_waiting.keepFree({place - QPointF(radius, radius), QSizeF(2, 2) * radius});
        write(m_nameText, place + QPointF(14, 4), m_marks.name(mark), rank);
    }

    /// Draws the marks with colours, class 0 on top.
    void paintColored()
    {
        for (std::size_t place = m_colored.size(); place-- > 0;) {
            const QColor color = QColor::fromRgb(m_survey.colors()[place]);
            const CircleStamp stamp(kColoredRadius, QPen(color), color, m_ratio);
            for (std::size_t i = 0; i < m_colored[place].size(); ++i) {
                if (i % kMarksAtOnce == 0 && m_frame.isStopped())
                    return;
                stamp.draw(m_painter, m_colored[place][i]);
            }
        }
    }

    void paintDesignPlace(const QPointF& measured, const QPointF& design, bool isCovered)
    {
        const QPointF offset = design - measured;
        if (!isCovered || std::hypot(offset.x(), offset.y()) > kHidden)
            drawDashed({measured, design});
        if (m_lineArea.contains(design))
            m_designs[m_colored.empty() ? m_filling : Hollow].draw(m_painter, design);
    }

    void paintBase(std::uint32_t index)
    {
        ScreenBase& base = m_bases[index];
        m_filling = Blue;
        if (m_lineArea.contains(base.place))
            m_base.draw(m_painter, base.place);
        if (!base.label.empty())
            return;
        base.label = (m_baseWord + QLatin1Char('-') + QString::number(index + 1)).toStdString();
        write(m_baseText, base.place + QPointF(14, 4), base.label);
    }

    void paintLineLabel(const MarkTable::Line& line)
    {
        m_filling = Red;
        const QPointF place = screenOf(m_marks.place(m_marks.firstOf(line)));
        write(m_lineText, place + QPointF(dpi_scaled(-30), dpi_scaled(5)), line.number);
    }

    void drawToBase(const QLineF& line)
    {
        const auto seen = clippedLine(line, m_edge);
        if (!seen || m_thinToBase.draw(*seen))
            return;
        usePen(m_toBase);
        m_painter.drawLine(*seen);
    }

    /// Draws the part of a dashed line that can be seen. Its dashes stand where those of the whole
    /// line would.
    void drawDashed(const QLineF& line)
    {
        const auto seen = clippedLine(line, m_lineArea);
        if (!seen)
            return;
        const double skipped = QLineF(line.p1(), seen->p1()).length();
        usePen(m_toDesign);
        if (skipped > 0) {
            QPen pen = m_toDesign;
            pen.setDashOffset(std::fmod(skipped, kDashes));
            m_painter.setPen(pen);
            m_pen = nullptr;
        }
        m_painter.drawLine(*seen);
    }

    /// \param text stays until the picture is finished
    /// \param rank see `WaitingNames`
    void write(const QPen& pen, const QPointF& baseline, std::string_view text,
               std::uint32_t rank = 0)
    {
        if (m_options.names == Names::None || !m_screen.contains(baseline))
            return;
        if (m_options.names == Names::WithRoom) {
            m_waiting.add({baseline, text, &pen, rank});
            return;
        }
        usePen(pen);
        m_names.write(m_painter, baseline, text);
    }

    void usePen(const QPen& pen)
    {
        if (m_pen == &pen)
            return;
        m_painter.setPen(pen);
        m_pen = &pen;
    }

    [[nodiscard]] bool isInside(const QPointF& screen) const
    {
        return std::isfinite(screen.x()) && std::isfinite(screen.y()) &&
               m_frame.drawingArea.contains(screen);
    }
    [[nodiscard]] QPointF screenOf(const QPointF& map) const
    {
        return m_frame.transform.SurveyToScreen(map);
    }

    const SurveyMarks& m_survey;
    const MarkTable& m_marks;
    const PictureFrame& m_frame;
    const QString& m_baseWord;
    QPainter& m_painter;
    const SurveyPictureOptions& m_options;
    NameWriter m_names;
    WaitingNames m_waiting;
    std::vector<std::vector<QPointF>> m_colored; ///< places of marks by class, screen pixels
    std::vector<ScreenBase> m_bases;
    Filling m_filling = Hollow;

    const Look& m_look;
    const QPen m_toBase{m_look.toBase, 1};
    ThinLine m_thinToBase{m_painter, m_look.toBase.rgb()};
    const QPen m_toDesign{m_look.toDesign, 1, Qt::DashLine};
    const QPen m_nameText{m_look.name};
    const QPen m_lineText{m_look.lineName};
    const QPen m_baseText{m_look.base};
    const QPen* m_pen = nullptr; ///< the painter's pen; null when it is none of these

    double m_ratio;
    const CircleStamp m_measured{kRadius, QPen(Qt::red), QBrush(Qt::red), m_ratio};
    const CircleStamp m_base{kRadius, QPen(m_look.base), QBrush(m_look.base), m_ratio};
    const std::array<CircleStamp, 3> m_designs{
        CircleStamp(kRadius, QPen(m_look.toDesign), QBrush(Qt::NoBrush), m_ratio),
        CircleStamp(kRadius, QPen(m_look.toDesign), QBrush(Qt::red), m_ratio),
        CircleStamp(kRadius, QPen(m_look.toDesign), QBrush(Qt::blue), m_ratio)};

    QRectF m_edge;     ///< the screen and a pixel around it
    QRectF m_lineArea; ///< no line or circle outside it can be seen, screen pixels
    QRectF m_screen;   ///< no text that starts outside it can be seen, screen pixels
    QRectF m_area;     ///< the same in map coordinates
};

} // namespace

SurveyPictureOptions usualSurveyOptions(bool hasColors)
{
    SurveyPictureOptions options;
    options.showsBaseTies = !hasColors;
    options.names = hasColors ? Names::WithRoom : Names::All;
    return options;
}

void paintSurvey(const SurveyMarks& marks, const PictureFrame& frame, const QString& baseWord,
                 QPainter& painter, const SurveyPictureOptions& options)
{
    painter.setRenderHint(QPainter::Antialiasing);
    SurveyPainter(marks, frame, baseWord, painter, options).paint();
}
