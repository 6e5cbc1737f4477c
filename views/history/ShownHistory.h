#pragma once

#include "views/history/HistoryActionModel.h"

/// What the history of the open project has for its window, the newest first. Faults are logged.
namespace ShownHistory {

/// The actions that are not saved yet.
[[nodiscard]] HistoryActionModel::Rows unsaved(const HistoryFilter& filter);
/// The others, from the database; for a point with what each has done to it. This may take seconds.
/// \param note  why it failed, or what the user has to know; mostly empty
[[nodiscard]] HistoryActionModel::Rows saved(const HistoryFilter& filter, QString& note);
/// An action with all that it has changed.
/// \param fault  why that cannot be read; mostly empty
[[nodiscard]] HistoryReader::Event eventOf(const HistoryActionModel::Row& row, QString& fault);

} // namespace ShownHistory
