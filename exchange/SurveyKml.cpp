#include "exchange/SurveyKml.h"

#include "basalt_utilities/LocalTimes.h"
#include "exchange/KmlExport.h"
#include "exchange/KmlText.h"
#include "model/CodeTables.h"

#include <QCoreApplication>

#include <array>
#include <map>

namespace {

/// What a result says beside what every point says.
class ResultText
{
public:
    void add(const SurveyPoint& point, std::string& text)
    {
        KmlText::addText(m_solution, solutionOf(point.solutionType), text);
        KmlText::addNumber(m_horizontal, point.horizontalAccuracy, 4, " m", text);
        KmlText::addNumber(m_vertical, point.verticalAccuracy, 4, " m", text);
        std::array<char, basalt::LocalTimes::kTextSize> time{};
        const char* const end = m_times.write(time.data(), point.dateTime);
        KmlText::addText(m_time, {time.data(), static_cast<std::size_t>(end - time.data())}, text);
    }
    void addQuality(const QString& words, std::string& text) const
    {
        KmlText::addText(m_quality, words.toStdString(), text);
    }

private:
    const std::string& solutionOf(int code)
    {
        const auto found = m_solutions.find(code);
        return found != m_solutions.end()
                   ? found->second
                   : m_solutions.emplace(code, solutionTypeText(code).toStdString()).first->second;
    }

    basalt::LocalTimes m_times;
    std::map<int, std::string> m_solutions;
    std::string m_solution = KmlText::caption(QT_TRANSLATE_NOOP("Kml", "Solution"));
    std::string m_horizontal = KmlText::caption(QT_TRANSLATE_NOOP("Kml", "Horizontal accuracy"));
    std::string m_vertical = KmlText::caption(QT_TRANSLATE_NOOP("Kml", "Vertical accuracy"));
    std::string m_time = KmlText::caption(QT_TRANSLATE_NOOP("Kml", "Time"));
    std::string m_quality = KmlText::caption(QT_TRANSLATE_NOOP("Kml", "Quality"));
};

bool isReceiver(const SurveyPoint& point)
{
    return point.pointMark != 0;
}

} // namespace

Outcome writeSurveyKml(const QString& path, const SurveyKmlChoice& choice,
                       ICoordTransform& transform, ProgressReporter& progress)
{
    const KmlText text(lum::lengthUnitOf(transform.parameters()));
    ResultText result;
    return exportKml(
        {path, choice.lines, transform, progress,
         QCoreApplication::translate("SurveyCsv", "Export Survey Data"), "Survey Point",
         "Survey Line"},
        choice.points, [](const SurveyPoint& /*point*/) { return true; },
        [&](const SurveyPoint& point, KmlLabel& label) {
            label.name = writtenPointNumber(point.pointNumber);
            text.begin(point, isReceiver(point), label.description);
            result.add(point, label.description);
            const QString words =
                point.qualityStandard == 0 ? QString() : choice.qualityWords(point);
            if (!words.isEmpty())
                result.addQuality(words, label.description);
            label.style = words.isEmpty() ? &kKmlResult : &kKmlFailed;
        },
        [&](const SurveyPoint& first, std::size_t points) {
            return KmlLabel{first.lineNumber, text.ofLine(isReceiver(first), points), &kKmlResult};
        });
}
