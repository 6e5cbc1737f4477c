#include "tests/map/PlainPictures.h"

#include "map/PictureFrame.h"
#include "tests/support/Literals.h"

#include <QPainter>

#include <vector>

namespace {

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

QLineF plainSpan(const QPolygonF& line, const QRectF& area)
{
    int start = 0;
    int inside = 0;
    while (inside < line.size() && !area.contains(line[inside]))
        start = inside++;
    int end = inside;
    while (end < line.size() && area.contains(line[end]))
        ++end;
    return {line[start], line[std::min(end, line.size() - 1)]};
}

void paintDesignPoint(const DesignPoint& point, const QPointF& place, bool isLabelled,
                      QPainter& painter)
{
    painter.drawEllipse(place, 4, 4);
    if (!isLabelled)
        return;
    painter.drawText(place + QPointF(0, -10), text(point.pointNumber));
    painter.drawText(place + QPointF(0, 10),
                     "(%1, %2)"_q.arg(point.north, 0, 'f', 1).arg(point.east, 0, 'f', 1));
}

} // namespace

void paintDesignPlainly(const DesignPoints& points, const PictureFrame& frame,
                        const DesignPictureOptions& options, QPainter& painter)
{
    const double spacing = options.spacing / frame.transform.GetScale();
    for (const auto& [number, line] : points) {
        const int type = line.begin()->type;
        if ((type == 1 && !options.showsReceiverLines) || (type == 0 && !options.showsSourceLines))
            continue;
        const QColor color(type == 1 ? Qt::cyan : Qt::darkBlue);
        painter.setPen(color);
        painter.setBrush(color);
        QPolygonF polygon;
        for (const DesignPoint& point : line) {
            const QPointF place = frame.transform.SurveyToScreen(point.east, point.north);
            if (spacing >= 10 && frame.drawingArea.contains(place))
                paintDesignPoint(point, place, spacing >= 80, painter);
            if (polygon.isEmpty())
                painter.drawText(place + QPointF(-32, 5), text(number));
            polygon.append(place);
        }
        if (spacing >= 10)
            painter.drawPolyline(polygon);
        else
            painter.drawLine(plainSpan(polygon, frame.drawingArea));
    }
}

void paintSurveyPlainly(const SurveyPoints& points, const PictureFrame& frame, QPainter& painter)
{
    std::vector<QPointF> bases;
    std::vector<bool> isLabelled;
    const auto baseOf = [&](const SurveyPoint& point) {
        const QPointF place(point.referenceEast, point.referenceNorth);
        for (std::size_t i = 0; i < bases.size(); ++i) {
            if (QLineF(bases[i], place).length() < 1e-5)
                return i;
        }
        bases.push_back(place);
        isLabelled.push_back(false);
        return bases.size() - 1;
    };
    for (const auto& [number, line] : points) {
        bool isFirst = true;
        for (const SurveyPoint& point : line) {
            const std::size_t base = baseOf(point);
            const QPointF s = frame.transform.SurveyToScreen(point.east, point.north);
            const QPointF b = frame.transform.SurveyToScreen(bases[base]);
            const QPointF d = frame.transform.SurveyToScreen(point.designEast, point.designNorth);
            painter.setPen(QPen(Qt::green, 1, Qt::SolidLine));
            painter.drawLine(s, b);
            if (point.designNorth != 0 && point.designEast != 0) {
                painter.setPen(QPen(Qt::cyan, 1, Qt::DashLine));
                painter.drawLine(s, d);
                painter.setPen(Qt::cyan);
                painter.drawEllipse(d, 2, 2);
            }
            if (frame.drawingArea.contains(s)) {
                painter.setPen(Qt::red);
                painter.setBrush(Qt::red);
                painter.drawEllipse(s, 2, 2);
                painter.drawText(s + QPointF(14, 4), text(point.pointNumber));
            }
            if (frame.drawingArea.contains(b)) {
                painter.setPen(Qt::blue);
                painter.setBrush(Qt::blue);
                painter.drawEllipse(b, 2, 2);
                if (!isLabelled[base])
                    painter.drawText(b + QPointF(14, 4), "Base-%1"_q.arg(base + 1));
                isLabelled[base] = true;
            }
            if (isFirst) {
                painter.setPen(Qt::red);
                painter.setBrush(Qt::red);
                painter.drawText(s + QPointF(-30, 5), text(number));
                isFirst = false;
            }
        }
    }
}
