#include "samples/Crew.h"

#include "samples/DemoBase.h"
#include "samples/Terrain.h"

#include <QString>

namespace demo {

namespace {

constexpr int kFixed = 4;                                       ///< the code of a fixed solution
constexpr std::int64_t kZoneMs = 8 * std::int64_t(3600) * 1000; ///< UTC+8

} // namespace

Crew::Crew(const Equipment& equipment, const LocalPlace& camp, Random& random)
    : m_equipment(equipment), m_random(random), m_clock(camp)
{
}

SurveyPoint Crew::measure(const DesignPoint& design, const LocalPlace& stake)
{
    const PlanePlace plane = toPlane(stake);
    SurveyPoint point;
    point.lineNumber = design.lineNumber;
    point.pointNumber = design.pointNumber;
    point.pointMark = design.type;
    point.north = plane.north;
    point.east = plane.east;
    point.elevation = groundHeight(stake) + m_random.bell(0.008);
    point.designNorth = design.north;
    point.designEast = design.east;
    point.designElevation = design.elevation;
    point.surveyor = m_equipment.surveyor;
    point.instrumentType = m_equipment.instrument;
    point.instrumentSerialNumber = m_equipment.serialNumber;
    point.antennaHeight = m_equipment.poleM;
    const DemoBase& station = nearestStation(stake);
    point.baseStationId = station.id;
    point.referenceAltitude = stationHeight(station);
    const FieldClock before = m_clock;
    m_clock.goTo(stake);
    if (m_clock.day() != before.day())
        m_evenings.push_back(before);
    observe(point);
    return point;
}

void Crew::workLateOn(int day)
{
    if (m_clock.day() != day) {
        m_evenings.push_back(m_clock); // of the last day
        m_clock = m_evenings[static_cast<std::size_t>(day)];
    }
    m_clock.workLate();
}

void Crew::observe(SurveyPoint& point)
{
    m_clock.spend(m_random.whole(20, 50)); // to find the place and set the stake
    point.epochNumber = m_random.whole(5, 10);
    point.startTime = m_clock.now();
    m_clock.spend(point.epochNumber);
    point.endTime = m_clock.now();
    point.dateTime = point.endTime;
    point.rawOffset = kZoneMs;
    point.solutionType = kFixed;
    point.ageOfDiff = m_random.whole(1, 3);
    point.hdop = m_random.uniform(0.6, 1.2);
    point.vdop = m_random.uniform(0.9, 1.9);
    point.horizontalAccuracy = m_random.uniform(0.006, 0.012) * (1 + point.hdop);
    point.verticalAccuracy = m_random.uniform(0.007, 0.015) * (1 + point.vdop);
    setSatellites(point, m_random.whole(13, 27));
}

void setSatellites(SurveyPoint& point, int count)
{
    const int gps = (count + 2) / 3;
    const int galileo = count / 5;
    const int glonass = count / 6;
    point.satelliteNumber = count;
    point.satDetail = QStringLiteral("G%1 R%2 E%3 C%4")
                          .arg(gps)
                          .arg(glonass)
                          .arg(galileo)
                          .arg(count - gps - galileo - glonass)
                          .toStdString();
}

} // namespace demo
