#pragma once

#include "model/PointLines.h"
#include "project/history/History.h"
#include "protocol/Outcome.h"

#include <set>
#include <vector>

class IDBAdapter;
class PointLife;

/// Reads the history from a project's database, which is open. It never writes. A database without
/// a history has no actions; those of a newer version of the program are passed over.
class HistoryReader
{
public:
    explicit HistoryReader(IDBAdapter& database) : m_database(database) {}

    // An outcome has a notice when points of an action are damaged in the database.

    /// The newest first.
    Outcome actions(const HistoryFilter& filter, std::vector<HistoryAction>& actions);
    /// All that an action has changed: results, design points, parameters, each in the order of
    /// their names.
    Outcome items(const HistoryAction& action, std::vector<HistoryItem>& items);

    /// An action with what it did to one point.
    struct Event
    {
        HistoryAction action;
        std::vector<HistoryItem> items;
    };
    /// The life of a result and of the design point of the same name, the newest action first. It
    /// also tells what a point has become that changed as a whole.
    /// \param filter  with a point
    Outcome life(const HistoryFilter& filter, std::vector<Event>& events);

    /// What the history has that this version cannot show, for the user; empty when there is
    /// nothing.
    [[nodiscard]] QString notice();

private:
    bool readActions(const std::string& condition, std::vector<HistoryAction>& actions);
    /// \param point  of it alone; or null
    bool readItems(const HistoryAction& action, const PointName* point,
                   std::vector<HistoryItem>& items);
    bool readRows(const HistoryAction& action, const PointName* point,
                  std::vector<HistoryItem>& items);
    bool readLife(const PointName& point, std::vector<Event>& events);
    bool readPresent(const PointName& point, PointLife& life);
    [[nodiscard]] Outcome outcome(bool isRead) const;

    IDBAdapter& m_database;
    std::set<std::int64_t> m_damaged; ///< actions
};

/// Points of the history, ready to be put back.
struct HistoryPoints
{
    DesignPoints design;
    SurveyPoints results; ///< without sea heights
    PointNames leaving;   ///< of results that get the names back that they had, or were not there
};

/// The points of these items of an action as they were before it. Of a point that changed in single
/// fields, these fields are as they were and the rest is as in `present`; one that is not there any
/// more gives nothing, and a point that had come neither. A result that was renamed, and is there
/// under any name, leaves that name, and so does one that was made of several. A check point that
/// is not there as it was gets a counter that is free in `present`.
[[nodiscard]] HistoryPoints pointsBefore(const HistoryAction& action,
                                         const std::vector<HistoryItem>& items,
                                         const DesignPoints& presentDesign,
                                         const SurveyPoints& presentResults);

/// A value that an item has changed.
struct HistoryField
{
    std::string key;
    std::string oldText; ///< as the database has it
    std::string newText; ///< empty where it is not known
};

/// The fields of an item in the order of the database's columns: of a point that is gone all, of
/// one that changed as a whole those that are different; all of them where the history does not say
/// what it has become.
[[nodiscard]] std::vector<HistoryField> fieldsOf(const HistoryAction& action,
                                                 const HistoryItem& item);
