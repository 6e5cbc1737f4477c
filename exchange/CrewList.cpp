#include "exchange/CrewList.h"

#include "exchange/DesignCsvWriter.h"
#include "exchange/KmlExport.h"
#include "exchange/KmlText.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("CrewList", text);
}

Outcome withNotice(Outcome writing, const CrewList& list)
{
    if (writing.isDone())
        writing.add(list.notice());
    return writing;
}

} // namespace

void CrewList::add(const DesignPoint& point, const std::string& why)
{
    const auto [place, isNew] = m_whys.try_emplace(nameOf(point));
    if (isNew) {
        m_points.set(point);
        m_notSurveyed += point.status == 0 ? 1 : 0;
    }
    if (!why.empty())
        place->second.push_back(why);
}

void CrewList::addUnknown(std::string_view line, std::string_view number)
{
    m_unknown.emplace(line, number);
}

QStringList CrewList::lines() const
{
    QStringList lines;
    for (const auto& [number, line] : m_points)
        lines << QString::fromStdString(number);
    return lines;
}

const std::vector<std::string>& CrewList::whysOf(const DesignPoint& point) const
{
    return m_whys.at(nameOf(point));
}

QString CrewList::notice() const
{
    QStringList sentences{
        translated(
            QT_TRANSLATE_NOOP("CrewList", "Points to measure: %1, of them not surveyed yet: %2."))
            .arg(lum::groupedNumber(m_points.pointCount()), lum::groupedNumber(m_notSurveyed))};
    if (!m_unknown.empty())
        sentences << translated(QT_TRANSLATE_NOOP("CrewList",
                                                  "Names without a design point: %1, first %2/%3."))
                         .arg(lum::groupedNumber(m_unknown.size()),
                              lum::toQString(m_unknown.begin()->first),
                              lum::toQString(m_unknown.begin()->second));
    if (m_withoutPoint > 0)
        sentences << translated(
                         QT_TRANSLATE_NOOP("CrewList",
                                           "Problems of a line or a group, without a point: %1."))
                         .arg(lum::groupedNumber(m_withoutPoint));
    return sentences.join(QLatin1Char(' '));
}

Outcome writeCrewCsv(const QString& path, const CrewList& list, ProgressReporter& progress)
{
    return withNotice(writeDesignCsv(path, list.points(), list.lines(), false, progress), list);
}

Outcome writeCrewKml(const QString& path, const CrewList& list, ICoordTransform& transform,
                     ProgressReporter& progress)
{
    const KmlText text(lum::lengthUnitOf(transform.parameters()));
    const std::string problem = KmlText::caption(QT_TRANSLATE_NOOP("Kml", "Problem"));
    const QStringList lines = list.lines();
    const auto describe = [&](const DesignPoint& point, KmlLabel& label) {
        const bool isReceiver = point.type != 0;
        label.name = point.pointNumber;
        text.begin(point, isReceiver, label.description);
        for (const std::string& why : list.whysOf(point))
            KmlText::addText(problem, why, label.description);
        label.style = isReceiver ? &kKmlReceiver : &kKmlSource;
    };
    return withNotice(
        exportKml(
            {path, lines, transform, progress,
             QCoreApplication::translate("DesignCsv", "Export Design Data"), "Design Point",
             nullptr},
            list.points(), [](const DesignPoint& /*point*/) { return true; }, describe,
            [](const DesignPoint& /*first*/, std::size_t /*points*/) { return KmlLabel(); }),
        list);
}
