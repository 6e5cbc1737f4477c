#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The letter that marks a resurvey in a point number, as a capital: any letter from A to Z but C,
/// which marks a check point.
/// \param entered what the user typed, a capital or a small letter
/// \returns nothing when it is no such letter
[[nodiscard]] std::optional<std::string> resurveyCode(const std::string& entered);

/// A point number without every occurrence of the code: what a resurvey surveys again.
[[nodiscard]] std::string withoutCode(std::string_view number, std::string_view code);
