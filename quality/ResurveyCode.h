#pragma once

#include <optional>
#include <string>

/// The letter that marks a resurvey in a point number, as the user entered it: one letter from A to
/// Z, small ones taken for capitals. C marks a check point, and cannot be it.
/// \returns nothing for any other text
[[nodiscard]] std::optional<std::string> resurveyCode(const std::string& entered);
