#include "samples/DemoFiles.h"

#include "exchange/CsvRow.h"
#include "exchange/SurveyCsvWriter.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/WholeFileWriter.h"
#include "model/SurveyColumns.h"
#include "samples/DemoLimits.h"
#include "samples/DemoSurvey.h"

#include <QDir>

namespace demo {

namespace {

QString writeDesign(const QString& path, const DesignPoints& points)
{
    lum::WholeFileWriter file(path);
    file.write("point_num,line_num,north,east,elevation,azimuth,type,status\n");
    CsvRow row;
    for (const auto& [number, line] : points) {
        for (const DesignPoint& point : line) {
            row.clear();
            row.addText(point.pointNumber);
            row.addText(point.lineNumber);
            row.addFixed(point.north, 4);
            row.addFixed(point.east, 4);
            row.addFixed(point.elevation, 4);
            row.addFixed(point.azimuth, 6);
            row.addInteger(point.type);
            row.addInteger(point.status);
            file.write(row.finished());
        }
    }
    return file.commit();
}

QString writeFaults(const QString& path, const std::vector<PlantedFault>& faults)
{
    lum::WholeFileWriter file(path);
    file.write("kind,line,point,what\n");
    CsvRow row;
    for (const PlantedFault& fault : faults) {
        row.clear();
        for (const std::string* text : {&fault.kind, &fault.line, &fault.point, &fault.what})
            row.addText(*text);
        file.write(row.finished());
    }
    return file.commit();
}

QString writeLimits(const QString& path)
{
    lum::WholeFileWriter file(path);
    for (const DemoLimit& limit : demoLimits())
        file.write(limit.key + std::string("=") + limit.value + '\n');
    return file.commit();
}

/// Turns a time of the survey's clocks into the moment at which the clocks of a zone show the same.
class Moments
{
public:
    explicit Moments(const basalt::LocalTimes& zone) : m_zone(zone) {}

    [[nodiscard]] std::int64_t of(std::int64_t moment)
    {
        char text[basalt::LocalTimes::kTextSize];
        const char* const end = m_survey.write(text, moment);
        const std::string_view shown(text, static_cast<std::size_t>(end - text));
        return m_zone.read(shown).value_or(moment);
    }

private:
    basalt::LocalTimes m_survey{0};
    basalt::LocalTimes m_zone;
};

SurveyPoints withMoments(const SurveyPoints& survey, const basalt::LocalTimes& zone)
{
    Moments moments(zone);
    SurveyPoints points;
    for (const auto& [number, line] : survey) {
        for (SurveyPoint point : line) {
            for (std::int64_t* time : {&point.dateTime, &point.startTime, &point.endTime})
                *time = moments.of(*time);
            points.set(std::move(point));
        }
    }
    return points;
}

QString writeSurvey(const QString& path, const SurveyPoints& survey)
{
    QStringList lines;
    for (const auto& [number, line] : survey)
        lines << QString::fromStdString(number);
    ProgressReporter nobody(nullptr);
    return writeSurveyCsv(path, survey, lines, {surveyCaptions()}, nobody).text();
}

} // namespace

QString writeDemoFiles(const QString& folder, const DemoSurvey& demo,
                       const basalt::LocalTimes& zone)
{
    const QDir place(folder);
    if (!place.mkpath(QStringLiteral(".")))
        return QStringLiteral("The folder %1 cannot be made.").arg(folder);
    QString fault = writeDesign(place.filePath(QStringLiteral("design.csv")), demo.design);
    if (fault.isEmpty())
        fault = writeSurvey(place.filePath(QStringLiteral("survey.csv")),
                            withMoments(demo.survey, zone));
    if (fault.isEmpty())
        fault = writeFaults(place.filePath(QStringLiteral("faults.csv")), demo.faults);
    if (fault.isEmpty())
        fault = writeLimits(place.filePath(QStringLiteral("limits.txt")));
    return fault;
}

} // namespace demo
