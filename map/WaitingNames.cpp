#include "map/WaitingNames.h"

#include "map/NameRoom.h"
#include "map/NameWriter.h"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t kNamesAtOnce = 1024;

/// Writes a white edge around a name.
void writeEdge(QPainter& painter, NameWriter& writer, const WaitingNames::Name& name)
{
    painter.setPen(Qt::white);
    for (const double x : {-1.0, 0.0, 1.0}) {
        for (const double y : {-1.0, 0.0, 1.0})
            writer.write(painter, name.baseline + QPointF(x, y), name.text);
    }
}

} // namespace

void WaitingNames::write(QPainter& painter, NameWriter& writer, const QRectF& screen,
                         const QRectF& around, const std::function<bool()>& isStopped)
{
    std::stable_sort(m_names.begin(), m_names.end(),
                     [](const Name& a, const Name& b) { return a.rank < b.rank; });
    NameRoom room(around);
    const QPen* pen = nullptr;
    bool isBeforeMarks = true;
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        if (i % kNamesAtOnce == 0 && isStopped())
            return;
        const Name& name = m_names[i];
        if (name.rank != 0 && std::exchange(isBeforeMarks, false)) {
            for (const QRectF& mark : m_marks)
                room.block(mark);
        }
        const QRectF area = writer.area(name.baseline, name.text);
        if ((name.rank != 0 && !screen.contains(area)) || !room.take(area))
            continue;
        if (name.rank == 0) {
            writeEdge(painter, writer, name);
            pen = nullptr;
        }
        if (name.pen != pen)
            painter.setPen(*(pen = name.pen));
        writer.write(painter, name.baseline, name.text);
    }
}
