#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace basalt {

/// Moments as the date and time of one zone, "yyyy/MM/dd hh:mm:ss", and back. It is made for
/// columns of times and takes some ten nanoseconds for each, since it remembers the changes of the
/// zone that it has met. Use one object in one thread for one operation: it does not notice when
/// the user changes the zone. (CCTZ would be as right for named zones, but reads "TZ=CST-8" as
/// UTC.)
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
    /// \returns the end of what was written: `to` itself for a year that has not four digits
    char* write(char* to, std::int64_t milliseconds);

    /// The reverse of `write`; no value for a text of another form, or one that names no day or
    /// time of a day. When clocks are set back, a time occurs twice: the first is taken. When they
    /// are set forward, a time is left out: it is read as one that is later by as much.
    [[nodiscard]] std::optional<std::int64_t> read(std::string_view text);

    /// The seconds that the clocks of the zone show at a moment, counted from their own 1970/01/01
    /// 00:00:00: divided by the seconds of a day they are the day, and the time of the day.
    /// \param milliseconds since 1970 UTC; parts of a second are cut off
    [[nodiscard]] std::int64_t clockSeconds(std::int64_t milliseconds);

private:
    /// A time in which the zone's offset does not change, in seconds since 1970 UTC.
    struct Span
    {
        std::int64_t from = 0;
        std::int64_t to = 0; ///< the first second of the next span
        std::int64_t offset = 0;
    };
    using Spans = std::vector<Span>;

    std::int64_t offsetAt(std::int64_t utc);
    std::int64_t toUtc(std::int64_t local);
    const Spans& spansOf(std::int64_t period);

    Span m_last; ///< the last one used; the next moment mostly lies in it
    std::unordered_map<std::int64_t, Spans> m_periods;
    std::int64_t m_day = 0;  ///< the last one written, in days since 1970
    char m_dayText[11] = ""; ///< as "yyyy/MM/dd"; empty for a year that has not four digits
    bool m_hasDay = false;
};

} // namespace basalt
