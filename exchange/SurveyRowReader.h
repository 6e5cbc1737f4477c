#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "exchange/AngleText.h"
#include "exchange/SolutionTypeNames.h"
#include "exchange/SurveyCsvColumns.h"

#include <string>
#include <string_view>
#include <vector>

/// Survey points from the lines of a CSV file, whose heading tells where its columns stand.
class SurveyRowReader
{
public:
    SurveyRowReader();

    /// Takes the line as the heading when it holds the captions of line and point number. Of a
    /// caption that stands twice the last counts; others are let aside.
    bool readHeading(std::string_view line);
    [[nodiscard]] bool hasHeading() const { return !m_places.empty(); }

    /// Sets the fields of the columns in the heading; blanks around each are dropped, one that is
    /// missing is empty, and what is no number, or no time, reads as 0.
    /// \returns false when there was no heading, or the point has no number
    bool read(std::string_view line, SurveyPoint& point);

    /// A field of the line that was read last that says something, but no value of its column.
    struct Misread
    {
        std::string_view caption;
        std::string_view text;
    };
    [[nodiscard]] const std::vector<Misread>& misread() const { return m_misread; }

private:
    /// A column of the file.
    struct Place
    {
        std::size_t index;
        const SurveyCsvColumn* column;
    };

    /// False for a text that is no value of the column, which then is 0.
    bool setField(std::string_view text, const SurveyCsvColumn& column, SurveyPoint& point);

    std::vector<std::string> m_captions; ///< of all columns, translated
    std::vector<Place> m_places;         ///< ordered by index
    std::vector<Misread> m_misread;
    AngleText m_angles{0};
    basalt::LocalTimes m_times;
    SolutionTypeNames m_solutions;
    std::string m_loft;
};
