#include "exchange/SurveyCsvReader.h"

#include "basalt_utilities/KeyList.h"
#include "exchange/CsvFields.h"
#include "exchange/CsvImport.h"
#include "exchange/DesignHeading.h"
#include "exchange/SurveyRowReader.h"
#include "model/PointNumber.h"

#include <QCoreApplication>

#include <optional>

namespace {

using Taken = SurveyRowReader::Taken;

/// Survey points from the lines of a file, first of all its heading.
class Rows
{
public:
    /// Fills `point`; or answers false, and counts a line as skipped that lacks its point number.
    bool read(std::string_view line, SurveyPoint& point, ImportSummary& summary)
    {
        if (!m_reader) {
            lookForHeading(line);
            return false;
        }
        if (m_reader->read(line, point)) {
            noteRow(point, summary);
            return true;
        }
        if (!basalt::trimmed(line).empty())
            summary.note(summary.skipped, [] {
                return QCoreApplication::translate("SurveyCsv", "The point has no number.");
            });
        return false;
    }

    /// To be called behind the last line.
    void addRemarks(ImportSummary& summary) const
    {
        if (!m_reader && summary.linesRead > 0)
            summary.remarks += m_headings.whyNone(m_firstLines);
        if (m_isDesign)
            summary.remarks << QCoreApplication::translate(
                "SurveyCsv", "The heading is that of a design file, whose points were taken as "
                             "results. Design points have an import of their own.");
        if (!m_passedOver.isEmpty())
            summary.remarks << passedOverText();
    }

private:
    void lookForHeading(std::string_view line)
    {
        constexpr std::size_t kMostLines = 20;
        constexpr std::size_t kMostBytes = 4000;
        if (const auto heading = m_headings.find(line)) {
            m_reader.emplace(*heading);
            m_isDesign = isDesignHeading(line, {heading->language});
            m_passedOver = heading->passedOver;
        } else if (m_firstLines.size() < kMostLines) {
            m_firstLines.emplace_back(line.substr(0, kMostBytes));
        }
    }

    [[nodiscard]] QString passedOverText() const
    {
        constexpr int kMostShown = 10;
        QStringList shown;
        for (const QString& caption : m_passedOver.mid(0, kMostShown))
            shown << QStringLiteral("\"%1\"").arg(shownField(caption.toStdString()));
        if (m_passedOver.size() > kMostShown)
            shown << QString(QChar(0x2026));
        return QCoreApplication::translate("SurveyCsv", "Columns that are not read: %1: %2.")
            .arg(QString::number(m_passedOver.size()), shown.join(QLatin1String(", ")));
    }

    void noteRow(const SurveyPoint& point, ImportSummary& summary)
    {
        for (const SurveyRowReader::Change& change : m_reader->changes()) {
            if (change.taken == Taken::WithoutDecimals)
                ++summary.decimalsDropped;
            else
                summary.note(change.taken == Taken::AsZero ? summary.misread : summary.changed,
                             [&] { return m_reader->toText(change, point); });
        }
        summary.pointsWithoutLine += point.lineNumber.empty() ? 1U : 0U;
        if (m_reader->hasSurplus())
            summary.note(summary.surplus, [&] { return m_reader->surplusText(); });
        if (m_reader->isShort())
            summary.note(summary.shorter, [] {
                return QCoreApplication::translate("SurveyCsv", "The last fields are missing.");
            });
    }

    SurveyHeadings m_headings;
    std::optional<SurveyRowReader> m_reader; ///< once there was a heading
    std::vector<std::string> m_firstLines;   ///< before it
    QStringList m_passedOver;
    bool m_isDesign = false;
};

} // namespace

Outcome readSurveyCsv(const QString& path, SurveyPoints& points, ProgressReporter& progress,
                      ImportSummary& summary, TakenOver<SurveyPoints>* undo)
{
    Rows rows;
    SurveyPoints staged;
    SurveyPointFiler filer(staged, &points);
    Outcome outcome = importCsv(
        {path, progress, summary, QCoreApplication::translate("SurveyCsv", "Import Survey Data")},
        points, staged,
        [&](std::string_view line, SurveyPoint& point, ImportSummary& counts) {
            return rows.read(line, point, counts);
        },
        [&](SurveyPoint&& point) -> SurveyPoint& { return filer.file(std::move(point)); }, undo);
    if (outcome.isDone())
        rows.addRemarks(summary);
    return outcome;
}
