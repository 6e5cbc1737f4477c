#pragma once

#include "protocol/Outcome.h"

// How an import or an export failed, in the user's words.

[[nodiscard]] Outcome cannotRead(const QString& path, const QString& reason);
/// For a file whose reading has begun: says that no point was taken from it.
[[nodiscard]] Outcome readingBrokeOff(const QString& path, const QString& reason);
[[nodiscard]] Outcome cannotWrite(const QString& path, const QString& reason);

/// The reason of a failure that came as an exception; for a `catch` block.
[[nodiscard]] QString reasonOf(const std::exception& fault);
