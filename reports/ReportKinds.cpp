#include "reports/ReportKinds.h"

#include "reports/QualityReport.h"
#include "reports/RoverReport.h"
#include "reports/StatisticsReport.h"
#include "reports/SurveyResultsReport.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

// All workbooks: a new one is a line here.
constexpr std::array kKinds{
    ReportKind{"quality", "quality-check", ".xlsx",
               QT_TRANSLATE_NOOP("ReportKinds", "Quality check"), writeQualityReport},
    ReportKind{"statistics", "quality-statistics", ".xlsx",
               QT_TRANSLATE_NOOP("ReportKinds", "Quality statistics"), writeQualityStatistics},
    ReportKind{"rover", "rover-log", ".xlsx", QT_TRANSLATE_NOOP("ReportKinds", "Rover log"),
               writeRoverLog},
    ReportKind{"results", "survey-results", ".xlsx",
               QT_TRANSLATE_NOOP("ReportKinds", "Survey results"), writeSurveyResults},
};

} // namespace

QString ReportKind::captionText() const
{
    return QCoreApplication::translate("ReportKinds", caption);
}

std::span<const ReportKind> reportKinds()
{
    return kKinds;
}

const ReportKind* findReportKind(std::string_view name)
{
    const auto* const found = std::find_if(
        kKinds.begin(), kKinds.end(), [&](const ReportKind& kind) { return name == kind.name; });
    return found == kKinds.end() ? nullptr : found;
}
