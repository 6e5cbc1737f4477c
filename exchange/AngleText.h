#pragma once

#include "model/Language.h"

#include <optional>
#include <string>
#include <string_view>

/// Angles as the user reads them: decimal degrees with 8 decimals, or degrees, minutes and seconds
/// with 3 decimals, each followed by its unit in the language ("30deg30min0.000sec"). In a
/// negative angle every part that is not 0 has the sign. Seconds are never written as 60.
class AngleText
{
public:
    static constexpr std::size_t kMostSize = 400;

    /// \param degreeFormat the status key "degree_format": 0 for decimal degrees
    explicit AngleText(int degreeFormat, const Language& language = {});

    /// \param to at least `kMostSize` bytes
    /// \returns the end of what was written
    char* write(char* to, double degrees) const;

    /// Reads both forms, whatever the format of this object; any other text gives no value. A part
    /// that is no number counts as 0.
    /// \param isWhole becomes whether there is no such part; may be null
    [[nodiscard]] std::optional<double> read(std::string_view text, bool* isWhole = nullptr) const;

private:
    bool m_isDecimal;
    std::string m_degrees; ///< the units, UTF-8
    std::string m_minutes;
    std::string m_seconds;
};
