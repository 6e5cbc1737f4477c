#pragma once

#include "lum_sdk/events/ProgressReporter.h"
#include "protocol/Outcome.h"
#include "reports/ReportInput.h"
#include "tests/quality/statistics/MadeSurvey.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WorkbookReader.h"

#include <gtest/gtest.h>

#include <algorithm>

/// A report of a made survey, read back from its workbook.
class ReportTest : public testing::Test
{
protected:
    using Rows = std::vector<QStringList>;
    using Report = Outcome (*)(const QString& path, const ReportInput& input);

    static constexpr std::int64_t kNoon = 1747281600000; ///< 2025-05-15 12:00 in Shanghai

    explicit ReportTest(Report report) : m_report(report) {}

    [[nodiscard]] QString path() const { return m_folder.path("报告 1.xlsx"); }
    Outcome write()
    {
        return m_report(path(), {m_design, m_survey, m_quality, m_coords, "测区"_q,
                                 "/p/测区.kelx"_q, "Skyquill 1.0"_q, m_choice, m_progress});
    }
    [[nodiscard]] WorkbookReader book() const { return WorkbookReader(path()); }
    /// The rows of a sheet below its headings; of these columns when any are named.
    [[nodiscard]] Rows rows(const char* sheet, const QStringList& columns = {}) const
    {
        const Rows all = book().rows(QString::fromUtf8(sheet));
        Rows chosen;
        for (std::size_t row = 1; row < all.size(); ++row) {
            QStringList& cells = chosen.emplace_back();
            for (const QString& column : columns.isEmpty() ? all[0] : columns)
                cells << all[row].value(all[0].indexOf(column));
        }
        return chosen;
    }
    /// The rows of the summary from the one that begins with this text.
    [[nodiscard]] Rows summaryFrom(const char* label) const
    {
        const Rows all = book().rows("Summary"_q);
        const auto found = std::ranges::find_if(
            all, [&](const QStringList& row) { return row.value(0) == QString::fromUtf8(label); });
        return {found, all.end()};
    }
    /// The cells of the summary behind this text.
    [[nodiscard]] QStringList summary(const char* label) const
    {
        const Rows from = summaryFrom(label);
        return from.empty() ? QStringList() : from[0].mid(1);
    }

    TestFolder m_folder;
    MadeSurvey m_made;
    DesignPoints& m_design = m_made.design;
    SurveyPoints& m_survey = m_made.results;
    basalt::Dictionary m_quality;
    basalt::Dictionary m_coords;
    ReportChoice m_choice;
    ProgressReporter m_progress{nullptr};

private:
    Report m_report;
};
