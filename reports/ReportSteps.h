#pragma once

#include "protocol/Outcome.h"
#include "reports/ReportInput.h"

class Workbook;

/// The progress of a report over all its points, and whether there is a reason to stop.
class ReportSteps
{
public:
    /// \param total points, over all sheets
    ReportSteps(const ReportInput& input, Workbook& book, std::size_t total);

    /// The next point is done. \returns false when the report is cancelled or cannot be written
    [[nodiscard]] bool next()
    {
        constexpr std::size_t kStride = 500;
        return ++m_done % kStride != 0 || tell();
    }

    /// Completes the workbook, or says why there is none.
    /// \param notice what the report found, for the user
    [[nodiscard]] Outcome finish(const QString& notice);

private:
    bool tell();

    const ReportInput& m_input;
    Workbook& m_book;
    QString m_caption;
    std::size_t m_total;
    std::size_t m_done = 0;
    bool m_isCancelled = false;
};
