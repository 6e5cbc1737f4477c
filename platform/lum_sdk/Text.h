#pragma once

#include <QString>

#include <string_view>

namespace lum {

/// 8-bit text, which is UTF-8, as Qt's.
[[nodiscard]] inline QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace lum
