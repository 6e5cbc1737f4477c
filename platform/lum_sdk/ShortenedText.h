#pragma once

#include <QString>

namespace lum {

/// At most `most` letters of a text, the last of them an ellipsis where it is longer.
[[nodiscard]] inline QString shortened(const QString& text, int most)
{
    return text.size() <= most ? text : text.left(most - 1) + QChar(0x2026);
}

} // namespace lum
