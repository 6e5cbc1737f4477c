#include "reports/daily/AllReports.h"

#include "reports/daily/DailyReport.h"

#include <algorithm>
#include <vector>

std::span<const ReportKind> allReports()
{
    static const std::vector<ReportKind> kKinds = [] {
        std::vector<ReportKind> kinds(reportKinds().begin(), reportKinds().end());
        kinds.push_back(dailyReportKind());
        return kinds;
    }();
    return kKinds;
}

const ReportKind* findReport(std::string_view name)
{
    const auto kinds = allReports();
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [&](const ReportKind& kind) { return name == kind.name; });
    return found == kinds.end() ? nullptr : &*found;
}

std::string reportNames(std::string_view separator)
{
    std::string names;
    for (const ReportKind& kind : allReports())
        names.append(names.empty() ? "" : separator).append(kind.name);
    return names;
}
