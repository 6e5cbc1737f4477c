#include "project/history/PointRecord.h"

#include "basalt_utilities/KeyList.h"

#include <array>

std::vector<std::string> listedColumns(std::string_view columns)
{
    std::vector<std::string> names;
    while (!columns.empty())
        names.emplace_back(next_word3(columns, ','));
    return names;
}

std::string MeasurementText::operator()(const SurveyPoint& point)
{
    constexpr std::array kTelling{"date_time", "start_time", "north",
                                  "east",      "elevation",  "instrument_serial_number"};
    SurveyRecord::write(point, *m_texts);
    std::string text;
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        if (std::ranges::find(kTelling, m_columns[i]) != kTelling.end())
            text.append(m_texts->values()[i]) += '\t';
    }
    return text;
}
