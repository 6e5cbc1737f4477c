#include "quality/colors/ResultColors.h"

#include <algorithm>
#include <iterator>

std::vector<QRgb> ResultColors::colors() const
{
    std::vector<QRgb> colors;
    std::transform(m_classes.begin(), m_classes.end(), std::back_inserter(colors),
                   [](const Class& each) { return each.color; });
    return colors;
}

QString ResultColors::text(std::uint8_t place) const
{
    return QStringLiteral("%1: %2").arg(m_title, m_classes[place].caption);
}

lum::Legend ResultColors::legend(const std::vector<std::size_t>& counts) const
{
    lum::Legend legend;
    legend.title = m_title;
    for (std::size_t i = 0; i < m_classes.size() && i < counts.size(); ++i) {
        if (counts[i] != 0)
            legend.entries.push_back(
                {QColor::fromRgb(m_classes[i].color), m_classes[i].caption, counts[i]});
    }
    return legend;
}
