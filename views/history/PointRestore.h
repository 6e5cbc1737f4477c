#pragma once

#include "project/history/HistoryReader.h"

/// What became of the items that were to be restored.
struct PointRestore
{
    std::size_t restored = 0;   ///< points
    std::size_t replacing = 0;  ///< those of them that took the place of another state
    std::size_t unchanged = 0;  ///< points that are so already
    std::size_t impossible = 0; ///< points that were new, or whose corrected result is gone
    std::size_t withdrawn = 0;  ///< results that were made of several, which are back
    // What is not restored:
    std::size_t parameters = 0;
    std::size_t acceptances = 0;

    /// In one sentence or more.
    [[nodiscard]] QString told() const;
};

/// Puts the points of these items of an action back, as they were before it, in one step that can
/// be taken back. Results that were renamed go back as `withRenamed` says.
PointRestore restorePoints(const HistoryAction& action, const std::vector<HistoryItem>& items);
