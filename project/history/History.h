#pragma once

#include "model/PointName.h"

#include <QDate>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a change of the history is about.
enum class HistoryData
{
    Results,
    Design,
    QualityLimits,
    DesignParameters,
    CoordSystem,
    AcceptedProblems
};

/// "results", "design" and so on: as the database and the command line name it, never translated.
[[nodiscard]] const char* nameOf(HistoryData data);
/// Nothing for a name that no data has.
[[nodiscard]] std::optional<HistoryData> historyDataOf(std::string_view name);

/// What became of an action.
enum class HistoryState
{
    Done,
    TakenBack, ///< it takes back an action that was saved before
    Undone     ///< done and taken back before it was saved: it has changed nothing
};

/// "done", "taken_back" or "done_and_taken_back".
[[nodiscard]] const char* nameOf(HistoryState state);
[[nodiscard]] std::optional<HistoryState> historyStateOf(std::string_view name);

/// One action of the project's history: an import, a deletion, or one that was taken back.
struct HistoryAction
{
    std::int64_t id = 0;
    QDateTime time; ///< UTC
    QString person;
    QString machine;
    std::string kind; ///< a name of EditKinds
    HistoryState state = HistoryState::Done;
    QString file; ///< that it came from, or empty
    std::size_t points = 0;
    QString reason; ///< mostly empty
    /// The columns of its points, comma-separated; empty when it holds none.
    std::string designColumns;
    std::string resultColumns;
    bool isLarge = false; ///< its points stand in blobs
    bool isKnown = true;  ///< this version can read all of it

    /// "Delete 10,000 results", translated; the name of a kind that this version does not know.
    [[nodiscard]] QString title() const;
};

/// What an action has done to a point, or to one value of it.
enum class HistoryChange
{
    Came,   ///< there was no such point before, or the problem is accepted
    Gone,   ///< `old` is the whole point, or the problem is not accepted any more
    Changed ///< one field, or without a field the whole point
};

/// "came", "gone" or "changed".
[[nodiscard]] const char* nameOf(HistoryChange change);
[[nodiscard]] std::optional<HistoryChange> historyChangeOf(std::string_view name);

/// One change of an action. A point that has come has no values here: they stand in what happened
/// to it next, or in the project.
struct HistoryItem
{
    HistoryData data = HistoryData::Results;
    HistoryChange change = HistoryChange::Changed;
    PointName name; ///< as the database has it, a check point without counter; empty for
                    ///< parameters
    /// A key of SurveyColumns, DesignRecord or of the parameters; the kind of an accepted problem.
    std::string field;
    /// The text of a field as the database has it; the reason of an acceptance. Of a whole point
    /// that is gone or has changed, `fieldsOf` reads it.
    std::string oldText;
    /// Of a field; of a whole point only where it is known.
    std::string newText;
};

/// Whether a text of the database is more than nothing or 0: most columns of a point are not.
[[nodiscard]] bool saysSomething(std::string_view text);

/// The names that a text "line/point" may mean: both numbers may hold slashes. The likeliest, with
/// the shortest number of a point, comes first; none when one of them would always be empty. The
/// counter of a check point is left out.
[[nodiscard]] std::vector<PointName> pointNamesOf(const QString& text);

/// Which actions are asked for; what is not set takes all.
struct HistoryFilter
{
    QString person;
    QDate from; ///< the first day, on this computer's clock
    QDate to;   ///< the last day
    std::string kind;
    std::optional<PointName> point; ///< of a result or a design point
};
