#include "reports/ReportSteps.h"

#include "exchange/workbook/Workbook.h"
#include "lum_sdk/events/ProgressReporter.h"

#include <QCoreApplication>

ReportSteps::ReportSteps(const ReportInput& input, Workbook& book, std::size_t total)
    : m_input(input), m_book(book),
      m_caption(QCoreApplication::translate("Reports", "Writing the report")), m_total(total)
{
}

bool ReportSteps::tell()
{
    m_input.progress.report(m_caption, std::min(m_done, m_total), m_total);
    m_isCancelled = m_isCancelled || m_input.isCancelled();
    return !m_isCancelled && !m_book.hasFailed();
}

Outcome ReportSteps::finish(const QString& notice)
{
    m_isCancelled = m_isCancelled || m_input.isCancelled();
    Outcome outcome = m_isCancelled
                          ? Outcome::refused(QCoreApplication::translate(
                                "Reports", "The report was cancelled; no file was written."))
                          : m_book.commit();
    if (outcome.isDone())
        outcome.add(notice);
    m_input.progress.hide();
    return outcome;
}
