#include "lum_sdk/events/Payload.h"

#include "basalt_utilities/FixedDecimals.h"
#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"

#include <algorithm>
#include <cstring>

namespace payload {

namespace {

constexpr std::string_view kProgressTail = ",is_exec=0";

/// Writes six significant digits, as `formatGeneral`.
/// \param to at least `kFixedSize` bytes
/// \returns the end of what was written
char* writePercent(char* to, double percent)
{
    if (!(percent >= 1 && percent <= 100)) {
        const std::string text = basalt::formatGeneral(percent);
        return std::copy(text.begin(), text.end(), to);
    }
    char* end = basalt::writeFixed(to, percent, percent < 10 ? 5 : 4);
    while (end[-1] == '0')
        --end;
    return end[-1] == '.' ? end - 1 : end;
}

} // namespace

void read(const char* payload, IDictionary& values, char separator)
{
    values.clear();
    if (payload != nullptr)
        csa_to_dictionary(values, payload, '=', separator);
}

std::string progress(std::string_view caption, double percent)
{
    return ProgressText(caption).at(percent);
}

ProgressText::ProgressText(std::string_view caption)
    : m_text("text=" + basalt::quotedValue(caption) + ",value="), m_captionSize(m_text.size())
{
    m_text.resize(m_captionSize + basalt::kFixedSize + kProgressTail.size());
}

const char* ProgressText::at(double percent)
{
    char* const end = writePercent(m_text.data() + m_captionSize, percent);
    std::memcpy(end, kProgressTail.data(), kProgressTail.size() + 1);
    return m_text.data();
}

std::string started(std::string_view caption)
{
    return "text=" + basalt::quotedValue(caption) + ",value=0";
}

std::string busy(std::string_view caption)
{
    return "text=" + basalt::quotedValue(caption) + ",scroll=1";
}

std::string position(double north, double east)
{
    return "N=" + basalt::formatShortest(north) + " E=" + basalt::formatShortest(east);
}

} // namespace payload
