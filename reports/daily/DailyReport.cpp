#include "reports/daily/DailyReport.h"

#include "exchange/ShownTimes.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/WholeFile.h"
#include "lum_sdk/GroupedNumber.h"
#include "plots/PlotKinds.h"
#include "plots/StatisticsPlot.h"
#include "reports/daily/DailyFigures.h"
#include "reports/daily/DailyMap.h"
#include "reports/daily/DailyPages.h"
#include "reports/daily/DailyProblems.h"
#include "reports/ReportInput.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QPageLayout>
#include <QPdfWriter>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DailyReport)
};

constexpr int kDpi = 300;
constexpr double kLeastMap = 440; // pixels of 1/96 inch, with its heading
constexpr double kProgressHeight = 460;
constexpr double kOffsetsHeight = 470;

PlotData plotData(const statistics::SurveySample& sample, const QString& subject)
{
    // The figures outlive the plots.
    PlotData data = PlotData::ofAll(
        std::shared_ptr<const statistics::SurveySample>(std::shared_ptr<void>(), &sample), nullptr,
        shownTimes());
    data.subject = subject;
    return data;
}

/// Makes a report of one day, part after part.
class DailyReport
{
public:
    explicit DailyReport(const ReportInput& input)
        : m_input(input), m_figures(input), m_pages(input.projectName, title())
    {
    }

    /// \returns refused when it was cancelled
    Outcome write(const QString& path)
    {
        if (!tell(5))
            return cancelled();
        addFirstPage();
        addPlots();
        addStatistics();
        if (!tell(20))
            return cancelled();
        addProblems();
        if (!tell(50))
            return cancelled();
        return paint(path);
    }

private:
    /// \returns false when the report is cancelled
    bool tell(double percent)
    {
        m_input.progress.report(QCoreApplication::translate("Reports", "Writing the report"),
                                percent);
        return !m_input.isCancelled();
    }

    [[nodiscard]] static Outcome cancelled()
    {
        return Outcome::refused(QCoreApplication::translate(
            "Reports", "The report was cancelled; no file was written."));
    }

    [[nodiscard]] QString title() const
    {
        const QString caption = dailyReportKind().captionText();
        return m_figures.day().isValid() ? Texts::tr("%1, %2").arg(caption, m_figures.dayText())
                                         : caption;
    }

    void addFirstPage()
    {
        m_pages.addTitle(title());
        m_pages.addValues(dailyHead(m_input, m_figures));
        if (m_figures.ofDay().sample.results.empty())
            m_pages.addNote(dailyGap(m_input, m_figures));
        else
            m_pages.addTable(dailyWork(m_figures));
        m_pages.addChapter(Texts::tr("Progress"));
        m_pages.addValues(dailyProgress(m_figures));
        addMap();
    }

    void addMap()
    {
        MapSheet sheet = dailyMap(m_input, m_figures);
        if (sheet.setup.area.isNull())
            return;
        if (m_pages.rest() < kLeastMap)
            m_pages.beginPage();
        m_pages.addChapter(Texts::tr("Map"));
        m_pages.addPicture(m_pages.rest(), [this, sheet = std::move(sheet)](QPainter& painter,
                                                                            const QRectF& place) {
            m_hasMap = paintDailyMap(painter, place, sheet, kDpi);
        });
    }

    void addPlot(const char* kind, double height, PlotData data)
    {
        const std::shared_ptr<StatisticsPlot> plot = findPlotKind(kind)->make(nullptr);
        plot->resize(680, static_cast<int>(height));
        plot->setData(std::move(data));
        m_pages.addPicture(height, [plot](QPainter& painter, const QRectF& place) {
            plot->paint(painter, place);
        });
    }

    void addPlots()
    {
        if (m_figures.total().sample.results.empty())
            return;
        m_pages.beginPage();
        addPlot("progress", kProgressHeight, plotData(m_figures.total().sample, QString()));
        if (!m_figures.ofDay().sample.results.empty())
            addPlot("offsets", kOffsetsHeight,
                    plotData(m_figures.ofDay().sample, m_figures.dayText()));
    }

    void addStatistics()
    {
        if (m_figures.total().sample.results.empty())
            return;
        m_pages.beginPage();
        for (const DailySpan span : {DailySpan::OfDay, DailySpan::Total}) {
            if (span == DailySpan::OfDay && m_figures.ofDay().sample.results.empty())
                continue;
            for (const DailyKey key : {DailyKey::Surveyor, DailyKey::Rover})
                m_pages.addTable(dailyStatistics(m_figures, span, key));
        }
        m_pages.addNote(Texts::tr(
            "Figures are those of the workbook \"Quality statistics\": of first measurements, "
            "differences measured minus design."));
    }

    void addProblems()
    {
        if (!m_input.findProblems)
            return;
        const DailyProblems problems(m_input.findProblems(), m_figures);
        m_problems = problems.count;
        if (problems.count == 0) {
            m_pages.addChapter(problems.kinds.title);
            m_pages.addNote(Texts::tr("There is none."));
            return;
        }
        m_pages.addTable(problems.kinds);
        m_pages.addTable(problems.rows);
    }

    Outcome paint(const QString& path)
    {
        QByteArray content;
        QBuffer buffer(&content);
        buffer.open(QIODevice::WriteOnly);
        {
            QPdfWriter writer(&buffer);
            writer.setTitle(m_input.projectName + QStringLiteral(", ") + title());
            writer.setCreator(m_input.program);
            writer.setResolution(kDpi);
            writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}));
            double done = 0;
            const bool isPainted = m_pages.paint(writer, [&] {
                done += 1;
                return tell(50 + 50 * done / double(m_pages.count()));
            });
            if (!isPainted)
                return cancelled();
        }
        const QString fault =
            m_hasMap ? lum::writeWholeFile(path, content)
                     : QCoreApplication::translate("MapSheet", "there is not enough memory");
        if (!fault.isEmpty())
            return Outcome::failed(
                Texts::tr("Cannot write \"%1\": %2").arg(QDir::toNativeSeparators(path), fault));
        return Outcome::done(notice());
    }

    [[nodiscard]] QString notice() const
    {
        using statistics::ResultKind;
        using statistics::Verdict;
        if (m_figures.ofDay().sample.results.empty())
            return dailyGap(m_input, m_figures);
        const statistics::Figures& ofDay = m_figures.ofDay().all;
        return Texts::tr("%1: points staked: %2, over limit: %3, still missing: %4, open problems: "
                         "%5.")
            .arg(m_figures.dayText(), lum::groupedNumber(ofDay.of(ResultKind::Staked)),
                 lum::groupedNumber(ofDay.first(Verdict::Failed)),
                 lum::groupedNumber(m_figures.total().sample.design.left),
                 lum::groupedNumber(m_problems));
    }

    const ReportInput& m_input;
    DailyFigures m_figures;
    DailyPages m_pages;
    std::size_t m_problems = 0;
    bool m_hasMap = true; ///< false when there was not enough memory for it
};

} // namespace

ReportKind dailyReportKind()
{
    return {"daily",          "daily-report",
            ".pdf",           QT_TRANSLATE_NOOP("ReportKinds", "Daily report"),
            writeDailyReport, true};
}

Outcome writeDailyReport(const QString& path, const ReportInput& input)
{
    Outcome outcome = DailyReport(input).write(path);
    input.progress.hide();
    return outcome;
}
