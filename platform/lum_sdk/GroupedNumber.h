#pragma once

#include <QLocale>

#include <concepts>

namespace lum {

/// 200000 as "200,000", alike on every desktop.
[[nodiscard]] inline QString groupedNumber(std::integral auto number)
{
    return QLocale(QLocale::English).toString(static_cast<qlonglong>(number));
}

} // namespace lum
