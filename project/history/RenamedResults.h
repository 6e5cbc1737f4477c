#pragma once

#include "model/PointLines.h"
#include "project/history/History.h"

#include <utility>
#include <vector>

// Results under other names than they had. An action that renames has, of each, the whole result as
// it was under its new name, and also under the old one where that is free since then. A correction
// of one result has the fields that it has changed under the new name.

/// Whether an action may give results other names.
[[nodiscard]] bool isRenaming(const HistoryAction& action);
/// Whether an item tells of a result under another name than it had.
[[nodiscard]] bool isRename(const HistoryAction& action, const HistoryItem& item);

/// Some items of an action, and those of the results that can only be put back with them: a result
/// goes with the one that has its old name now.
/// \param all  the items of the action
[[nodiscard]] std::vector<HistoryItem> withRenamed(const HistoryAction& action,
                                                   const std::vector<HistoryItem>& all,
                                                   const std::vector<HistoryItem>& some);

using RenamedResult = std::pair<const HistoryItem*, const SurveyPoint*>;

/// The items of a renaming with the results that they tell of, wherever these stand now: one that
/// was measured at the same time and place. Those that are gone are left out.
[[nodiscard]] std::vector<RenamedResult> presentResults(const HistoryAction& action,
                                                        const std::vector<HistoryItem>& items,
                                                        const SurveyPoints& present);
