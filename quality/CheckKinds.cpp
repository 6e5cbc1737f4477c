#include "quality/CheckKinds.h"

#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "quality/EmptyPointCheck.h"
#include "quality/EmptyPointResultModel.h"
#include "quality/QualityCheck.h"
#include "quality/QualityResultModel.h"
#include "quality/RepeatPoints.h"
#include "quality/RepeatResultModel.h"
#include "quality/ResurveyCheck.h"
#include "quality/ResurveyResultModel.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

/// A translated sentence with numbers in the place of %1, %2 and so on.
QString sentence(const char* text, std::initializer_list<std::size_t> numbers)
{
    QString filled = QCoreApplication::translate("CheckKinds", text);
    for (const std::size_t number : numbers)
        filled = filled.arg(lum::groupedNumber(number));
    return filled;
}

template <class Judge>
std::size_t countOf(const SurveyPoints& points, Judge judge)
{
    std::size_t count = 0;
    for (const auto& [number, line] : points)
        count += static_cast<std::size_t>(std::count_if(line.begin(), line.end(), judge));
    return count;
}

void runQuality(const CheckedData& data, ProgressReporter& progress)
{
    checkQuality(data.survey, data.parameters, progress, data.planeUnitM);
}

CheckResult qualityResult(const CheckedData& data)
{
    auto rows = describeQuality(data.survey, data.parameters, data.planeUnitM);
    std::size_t faulty = 0;
    const QualityRow* last = nullptr;
    for (const QualityRow& row : rows) { // the rows of a point stand together
        faulty += last == nullptr || row.pointNumber != last->pointNumber ||
                          row.lineNumber != last->lineNumber
                      ? 1U
                      : 0U;
        last = &row;
    }
    QString finding = sentence(
        QT_TRANSLATE_NOOP("CheckKinds", "Quality Check: %1 of %2 results with faults, %3 in all"),
        {faulty, data.survey.pointCount(), rows.size()});
    return {makeQualityResultModel(std::move(rows)), std::move(finding)};
}

void runEmptyPoints(const CheckedData& data, ProgressReporter& progress)
{
    checkEmptyPoints(data.design, data.survey, progress);
}

CheckResult emptyPointResult(const CheckedData& data)
{
    auto points = emptyPoints(data.design);
    QString finding =
        sentence(QT_TRANSLATE_NOOP("CheckKinds", "Empty Point Check: %1 of %2 points not surveyed"),
                 {points.size(), data.design.pointCount()});
    return {makeEmptyPointResultModel(std::move(points)), std::move(finding)};
}

void runResurveys(const CheckedData& data, ProgressReporter& progress)
{
    checkResurveys(data.survey, data.parameters, progress, data.planeUnitM);
}

CheckResult resurveyResult(const CheckedData& data)
{
    auto rows = resurveyRows(data.survey, data.parameters, data.planeUnitM);
    const auto out = static_cast<std::size_t>(std::count_if(
        rows.begin(), rows.end(), [](const ResurveyRow& row) { return row.hasPair; }));
    const std::size_t pairs = countOf(
        data.survey, [](const SurveyPoint& point) { return point.isResurvey == resurvey::kFirst; });
    QString finding =
        sentence(QT_TRANSLATE_NOOP("CheckKinds", "Resurvey Check: %1 of %2 resurveyed points out "
                                                 "of range, resurveys without their point: %3"),
                 {out, pairs, rows.size() - out});
    return {makeResurveyResultModel(std::move(rows)), std::move(finding)};
}

CheckResult repeatPointResult(const CheckedData& data)
{
    RepeatPoints found = findRepeatPoints(data.survey);
    QString finding =
        sentence(QT_TRANSLATE_NOOP("CheckKinds", "Repeat Point Check: %1 of %2 results are "
                                                 "repeats, repeats without their point: %3"),
                 {found.repeats, data.survey.pointCount(), found.alone});
    return {makeRepeatResultModel(std::move(found.rows)), std::move(finding)};
}

constexpr const char* kMetreNote =
    QT_TRANSLATE_NOOP("CheckKinds", "Lengths in this list are metres, as the limits are. The "
                                    "project's coordinates and line deviations are in another "
                                    "unit: %1.");
constexpr const char* kProjectUnitNote = QT_TRANSLATE_NOOP(
    "CheckKinds", "North and east are in the unit of the project: %1. Heights and limits are "
                  "metres.");

} // namespace

const CheckKind kQualityCheck{"quality", runQuality, qualityResult, kMetreNote};
const CheckKind kEmptyPointCheck{"empty", runEmptyPoints, emptyPointResult, kProjectUnitNote};
const CheckKind kResurveyCheck{"resurvey", runResurveys, resurveyResult, kProjectUnitNote};
const CheckKind kRepeatPointCheck{"repeat", nullptr, repeatPointResult, kProjectUnitNote};
const CheckKind kRepeatChoiceList{"", nullptr, nullptr, kMetreNote};

namespace {

// All checks: a new one is a line here.
constexpr std::array kKinds{&kQualityCheck, &kEmptyPointCheck, &kResurveyCheck, &kRepeatPointCheck};

} // namespace

QString unitNoteOf(const CheckKind& kind)
{
    const lum::LengthUnit unit = lum::lengthUnitOf(get_project_coord_transform().parameters());
    return lum::isMetre(unit) ? QString()
                              : QCoreApplication::translate("CheckKinds", kind.unitNote)
                                    .arg(lum::toQString(lum::symbolOf(unit)));
}

const CheckKind* findCheckKind(std::string_view name)
{
    const auto* const found = std::find_if(
        kKinds.begin(), kKinds.end(), [&](const CheckKind* kind) { return name == kind->name; });
    return found == kKinds.end() ? nullptr : *found;
}

std::string checkNames(std::string_view separator)
{
    std::string names;
    for (const CheckKind* const kind : kKinds)
        names.append(names.empty() ? "" : separator).append(kind->name);
    return names;
}
