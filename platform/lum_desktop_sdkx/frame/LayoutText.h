#pragma once

#include <QString>

namespace desktop {

/// The translation of a text from the frame's layout; the English text when there is none.
[[nodiscard]] QString layoutText(const QString& english);

} // namespace desktop
