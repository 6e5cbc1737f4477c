#pragma once

/// The message boxes that the user does not want to see again, by their `silenceKey`. The system
/// settings remember them.
namespace SilencedBoxes {

[[nodiscard]] bool contains(const char* key);
void add(const char* key);

/// Lets all of them be shown again.
/// \returns how many there were
int clear();

} // namespace SilencedBoxes
