#pragma once

#include <QByteArray>

#include <array>
#include <string>
#include <string_view>
#include <vector>

class QString;

/// Texts that ride along with events. A name or caption that holds a comma is quoted.
namespace payload {

/// "text=CAPTION,value=PERCENT,is_exec=0"; the percent in general notation, six digits.
[[nodiscard]] std::string progress(std::string_view caption, double percent);
/// The same, step after step.
class Progress
{
public:
    /// Before the first text.
    void setCaption(std::string_view caption);

    /// \returns a text that lasts until the next call
    const char* at(double percent);
    /// After `done` of `total` steps; no steps count as finished. The texts of a total are kept for
    /// the next caption, since lines are often of one length.
    const char* at(std::size_t done, std::size_t total);

private:
    static constexpr std::size_t kMostSteps = 4096; ///< that are kept
    using Step = std::array<char, 32>;              ///< a percent and what follows; empty at first

    std::string m_caption;
    std::string m_text;        ///< longer than the payload, which ends at its NUL
    std::size_t m_valueAt = 0; ///< where the percent begins; 0 before the first caption
    std::vector<Step> m_steps; ///< of one total, from 0
};
/// "text=CAPTION,value=0": work that begins.
[[nodiscard]] std::string started(std::string_view caption);
/// "text=CAPTION,scroll=1": work of unknown length.
[[nodiscard]] std::string busy(std::string_view caption);
inline constexpr const char* kProgressEnd = "show=0";

/// "N=... E=...", every digit that the value has.
[[nodiscard]] std::string position(double north, double east);

/// "line_num=LINE"
[[nodiscard]] QByteArray line(const QString& lineNumber);
/// "line_num=LINE,point_num=POINT"
[[nodiscard]] QByteArray linePoint(const QString& lineNumber, const QString& pointNumber);
/// "pointName=POINT,lineName=LINE"
[[nodiscard]] QByteArray selectedPoint(const QString& pointNumber, const QString& lineNumber);
/// "stationId=INDEX"
[[nodiscard]] QByteArray station(int index);

} // namespace payload
