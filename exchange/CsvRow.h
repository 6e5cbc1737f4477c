#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

class AngleText;

namespace basalt {
class LocalTimes;
}

/// A line of comma-separated fields, built field after field. Texts are not quoted; a line break
/// in a text becomes a blank.
class CsvRow
{
public:
    void clear() { m_size = 0; }
    void addText(std::string_view text);
    void addInteger(std::int64_t value);
    void addFixed(double value, int decimals);
    /// Six significant digits.
    void addGeneral(double value);
    void addAngle(const AngleText& angles, double degrees);
    void addTime(basalt::LocalTimes& times, std::int64_t milliseconds);

    /// The line with its end; to be called behind the last field.
    [[nodiscard]] std::string_view finished();

private:
    char* room(std::size_t size);
    void endField(const char* end);

    std::vector<char> m_buffer;
    std::size_t m_size = 0;
};
