#pragma once

#include <QString>

#include <string_view>

namespace lum {

/// UTF-8 text as a QString.
[[nodiscard]] inline QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace lum
