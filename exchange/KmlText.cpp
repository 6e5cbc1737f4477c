#include "exchange/KmlText.h"

#include "basalt_utilities/FixedDecimals.h"

#include <QCoreApplication>

#include <array>

KmlText::KmlText(const lum::LengthUnit& unit)
    : m_unit(' ' + lum::symbolOf(unit)), m_line(caption(QT_TRANSLATE_NOOP("Kml", "Line"))),
      m_kind(caption(QT_TRANSLATE_NOOP("Kml", "Kind"))),
      m_receiver(QCoreApplication::translate("Kml", "receiver").toStdString()),
      m_source(QCoreApplication::translate("Kml", "source").toStdString()),
      m_north(caption(QT_TRANSLATE_NOOP("Kml", "North"))),
      m_east(caption(QT_TRANSLATE_NOOP("Kml", "East"))),
      m_elevation(caption(QT_TRANSLATE_NOOP("Kml", "Elevation"))),
      m_points(caption(QT_TRANSLATE_NOOP("Kml", "Points")))
{
}

void KmlText::addText(const std::string& caption, std::string_view value, std::string& text)
{
    if (!text.empty())
        text += '\n';
    text.append(caption).append(value);
}

void KmlText::addNumber(const std::string& caption, double value, int decimals,
                        std::string_view unit, std::string& text)
{
    std::array<char, basalt::kFixedSize> digits; // NOLINT(cppcoreguidelines-pro-type-member-init)
    const char* const end = basalt::writeFixed(digits.data(), value, decimals);
    addText(caption, {digits.data(), static_cast<std::size_t>(end - digits.data())}, text);
    text += unit;
}

std::string KmlText::ofLine(bool isReceiver, std::size_t points) const
{
    std::string text;
    addText(m_kind, isReceiver ? m_receiver : m_source, text);
    addText(m_points, std::to_string(points), text);
    return text;
}

std::string KmlText::caption(const char* text)
{
    return QCoreApplication::translate("Kml", text).toStdString() + ": ";
}
