#pragma once

#include <QByteArray>

#include <string>
#include <string_view>

class QString;

/// Texts that ride along with events. A name or caption that holds a comma is quoted.
namespace payload {

/// "text=CAPTION,value=PERCENT,is_exec=0"; the percent in general notation, six digits.
[[nodiscard]] std::string progress(std::string_view caption, double percent);
/// The same, step after step of one caption.
class Progress
{
public:
    /// \returns a text that lasts until the next call
    const char* at(std::string_view caption, double percent);

private:
    std::string m_caption;
    std::string m_text;        ///< longer than the payload, which ends at its NUL
    std::size_t m_valueAt = 0; ///< where the percent begins; 0 before the first text
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
