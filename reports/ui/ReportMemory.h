#pragma once

#include <QDate>
#include <QStringList>

struct ProjectPlace;
struct ReportKind;

/// The files that the user wanted last, kept in the settings. Where a name or the folder contains
/// the open project's own, it follows the project that is open.
namespace ReportFiles {

[[nodiscard]] bool isWanted(const ReportKind& kind);
[[nodiscard]] QString fileName(const ReportKind& kind, const ProjectPlace& project);
[[nodiscard]] QString folder(const ProjectPlace& project);

void setWanted(const ReportKind& kind, bool isWanted);
void setFileName(const ReportKind& kind, const QString& name, const ProjectPlace& project);
void setFolder(const QString& folder, const ProjectPlace& project);
/// Writes the settings.
void save();

} // namespace ReportFiles

/// The results that go into the reports. A date that the user has left as it was proposed is
/// invalid, so that it follows the results.
struct PeriodChoice
{
    enum class Kind
    {
        All,
        Day,
        Span
    };
    Kind kind = Kind::All;
    QDate day;
    QDate first;
    QDate last;
};

/// What stays chosen while the program runs and the project is the same.
struct ReportMemory
{
    PeriodChoice period;
    QStringList leftOutSurveyors; ///< so that one who comes later is chosen

    /// \param folder of the open project; for another one than the last everything is forgotten
    [[nodiscard]] static ReportMemory& of(const QString& folder);
};
