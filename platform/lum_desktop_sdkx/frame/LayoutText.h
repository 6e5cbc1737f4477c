#pragma once

#include <QString>

namespace desktop {

/// The translation of a text of the frame's layout; the text itself when there is no translation.
[[nodiscard]] QString layoutText(const QString& english);

} // namespace desktop
