#pragma once

#include "lum_sdk/coords/LengthUnit.h"

#include <string>
#include <string_view>
#include <vector>

/// The description of a feature in KML: lines of "caption: value", with captions of the language in
/// use.
class KmlText
{
public:
    /// \param unit of the plane coordinates
    explicit KmlText(const lum::LengthUnit& unit);

    /// Line, kind, north, east and elevation, in place of what `text` held.
    template <class Point>
    void begin(const Point& point, bool isReceiver, std::string& text) const
    {
        text.clear();
        addText(m_line, point.lineNumber, text);
        addText(m_kind, isReceiver ? m_receiver : m_source, text);
        addNumber(m_north, point.north, 4, m_unit, text);
        addNumber(m_east, point.east, 4, m_unit, text);
        addNumber(m_elevation, point.elevation, 4, " m", text);
    }
    static void addText(const std::string& caption, std::string_view value, std::string& text);
    static void addNumber(const std::string& caption, double value, int decimals,
                          std::string_view unit, std::string& text);

    /// The description of a line.
    [[nodiscard]] std::string ofLine(bool isReceiver, std::size_t points) const;

    /// A caption as the functions above take it: translated, with its colon.
    [[nodiscard]] static std::string caption(const char* text);

private:
    std::string m_unit;
    std::string m_line;
    std::string m_kind;
    std::string m_receiver;
    std::string m_source;
    std::string m_north;
    std::string m_east;
    std::string m_elevation;
    std::string m_points;
};
