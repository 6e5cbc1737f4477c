#include "exchange/KmlExport.h"

#include "exchange/CsvFaults.h"
#include "lum_sdk/coords/Angles.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr auto kDirection = static_cast<std::int32_t>(CoordDirection::Target);
constexpr auto kFrom = static_cast<std::int32_t>(CoordKind::PlaneInput);
constexpr auto kTo = static_cast<std::int32_t>(CoordKind::Geodetic);
constexpr std::int32_t kAngles = 1; // decimal degrees

QString translated(const char* text)
{
    return QCoreApplication::translate("Kml", text);
}

} // namespace

QString KmlPositions::systemFault() const
{
    if (m_transform.isValid(kDirection))
        return {};
    CoordTriple none;
    const std::int32_t code = m_transform.transform(kDirection, kFrom, kTo, kAngles, 0, 0, 0,
                                                    &none.first, &none.second, &none.third);
    return QString::fromUtf8(m_transform.message(code));
}

std::size_t KmlPositions::transformAll()
{
    m_codes.assign(m_triples.size(), 0);
    const std::size_t failed =
        m_transform.transformMany(kDirection, kFrom, kTo, kAngles, m_triples, m_triples, m_codes);
    m_failed += failed;
    if (failed == 0)
        return m_triples.size();
    const auto isFault = [](std::int32_t code) { return code != 0; };
    return static_cast<std::size_t>(std::find_if(m_codes.begin(), m_codes.end(), isFault) -
                                    m_codes.begin());
}

void KmlPositions::keepFirst(const std::string& line, const std::string& point, std::int32_t code)
{
    m_firstFault = code;
    m_firstPlace = translated(QT_TRANSLATE_NOOP("Kml", "point \"%1\" of line \"%2\""))
                       .arg(lum::toQString(point), lum::toQString(line));
}

QString KmlPositions::notice() const
{
    if (m_failed == 0)
        return {};
    return translated(QT_TRANSLATE_NOOP("Kml", "Points that have no place on the globe and were "
                                               "left out: %1. The first is %2: %3"))
        .arg(QString::number(m_failed), m_firstPlace,
             QString::fromUtf8(m_transform.message(m_firstFault)));
}

void KmlLines::end(KmlLabel&& label)
{
    if (m_positions.size() > m_start)
        m_lines.push_back({std::move(label), m_positions.size()});
}

void KmlLines::writeTo(KmlFile& file) const
{
    std::size_t start = 0;
    for (const Line& line : m_lines) {
        file.addLine(line.label, std::span(m_positions).subspan(start, line.end - start));
        start = line.end;
    }
}

Outcome checkKml(const KmlExportTask& task, const KmlPositions& positions)
{
    const QString fault = positions.systemFault();
    if (fault.isEmpty())
        return Outcome::done();
    return cannotWrite(task.path, translated(QT_TRANSLATE_NOOP("Kml", "the project has no usable "
                                                                      "coordinate system. %1"))
                                      .arg(fault));
}

Outcome finishKml(const KmlExportTask& task, KmlFile& file, const KmlPositions& positions,
                  bool hasPoints)
{
    task.progress.hide();
    if (!hasPoints && positions.failed() != 0)
        return cannotWrite(task.path, positions.notice());
    const QString fault = file.commit();
    return fault.isEmpty() ? Outcome::done(positions.notice()) : cannotWrite(task.path, fault);
}
