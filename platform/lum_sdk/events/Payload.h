#pragma once

#include <cstddef>
#include <string>
#include <string_view>

class IDictionary;

/// The payloads of events: key lists such as "text=Loading,value=50". A value that holds the
/// separator is quoted.
namespace payload {

/// Replaces `values` by those of the payload; an event without a payload (null) leaves none.
void read(const char* payload, IDictionary& values, char separator = ',');

/// "text=CAPTION,value=PERCENT,is_exec=0"; the percent in general notation, six digits.
[[nodiscard]] std::string progress(std::string_view caption, double percent);

/// The same text for many percents: what the caption needs is done once.
class ProgressText
{
public:
    explicit ProgressText(std::string_view caption);

    /// Valid until the next call.
    [[nodiscard]] const char* at(double percent);

private:
    std::string m_text; ///< the part up to the percent, then room for the rest
    std::size_t m_captionSize;
};

/// "text=CAPTION,value=0": the work begins.
[[nodiscard]] std::string started(std::string_view caption);
/// "text=CAPTION,scroll=1": work of unknown length.
[[nodiscard]] std::string busy(std::string_view caption);
/// The work has ended; hides the bar.
inline constexpr const char* kProgressEnd = "show=0";

/// "N=... E=..." with every digit that the value has.
[[nodiscard]] std::string position(double north, double east);

} // namespace payload
