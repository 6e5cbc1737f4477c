#pragma once

#include "project/history/History.h"

#include <map>
#include <vector>

class IDictionary;

/// A result and a design point of one name on the way back through their history: tells what they
/// have become where the history only has what they were.
class PointLife
{
public:
    /// As the point stands in the database.
    void setPresent(HistoryData data, const IDictionary& row);
    /// Puts the new texts of whole points into the items of an action, the newest action first.
    void tellNewTexts(const HistoryAction& action, std::vector<HistoryItem>& items);
    /// Nothing is known of it before an action that cannot be read.
    void forget() { m_rows.clear(); }

private:
    /// Texts by column; empty while nothing is known of the point.
    using Row = std::map<std::string, std::string>;

    std::map<HistoryData, Row> m_rows; ///< as they were after the action
};
