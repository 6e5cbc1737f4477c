#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace basalt {

/// Moments as the date and time of one zone, "yyyy/MM/dd hh:mm:ss", and back: made for columns of
/// times, some twenty nanoseconds each. Remembers the zone's changes that it met; one object serves
/// one thread, and one operation, since it does not hear of a change of zone.
class LocalTimes
{
public:
    static constexpr std::size_t kTextSize = 19;

    /// The zone of this process with its daylight rules: "TZ", or the system's.
    LocalTimes();
    /// Always `hours` east of Greenwich.
    explicit LocalTimes(int hours);

    /// \param milliseconds since 1970 UTC; parts of a second are cut off
    /// \param to at least `kTextSize` bytes
    /// \returns the end of what was written; nothing is for years that have no four digits
    char* write(char* to, std::int64_t milliseconds);

    /// The reverse; nothing for a text of another form, or one that names no day or time of a day.
    /// Of a time that occurs twice, when clocks are set back, the first is taken. One that they
    /// jump over is moved on by as much as they jump.
    [[nodiscard]] std::optional<std::int64_t> read(std::string_view text);

private:
    /// From one change of the zone's offset to the next, seconds since 1970 UTC.
    struct Span
    {
        std::int64_t from = 0;
        std::int64_t to = 0; ///< the first second behind
        std::int64_t offset = 0;
    };
    using Spans = std::vector<Span>;

    std::int64_t offsetAt(std::int64_t utc);
    std::int64_t toUtc(std::int64_t local);
    const Spans& spansOf(std::int64_t period);

    Span m_last; ///< the one last met, mostly the next one too
    std::unordered_map<std::int64_t, Spans> m_periods;
    std::int64_t m_day = 0;  ///< since 1970, the one last written
    char m_dayText[11] = ""; ///< "yyyy/MM/dd", empty when it cannot be written
    bool m_hasDay = false;
};

} // namespace basalt
