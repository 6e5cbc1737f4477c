#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "exchange/AngleText.h"
#include "exchange/SolutionTypeNames.h"
#include "model/SurveyColumns.h"

#include <string>
#include <string_view>
#include <vector>

/// Survey points from the lines of a CSV file, whose heading tells where its columns stand.
class SurveyRowReader
{
public:
    SurveyRowReader();

    /// Takes the line as the heading when it holds the captions of line and point number. Of a
    /// caption that stands twice the last one counts; unknown captions are passed over.
    bool readHeading(std::string_view line);
    [[nodiscard]] bool hasHeading() const { return !m_places.empty(); }

    /// Sets the fields of the columns in the heading. Blanks around a field are dropped, a missing
    /// field counts as empty, and a number or time that cannot be read is 0.
    /// \returns false when there was no heading, or the point has no number
    bool read(std::string_view line, SurveyPoint& point);

    /// A field of the last line that is not empty and cannot be read.
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
        const SurveyColumn* column;
    };

    /// \returns false for a text that cannot be read; the field is then 0
    bool setField(std::string_view text, const SurveyColumn& column, SurveyPoint& point);

    std::vector<std::string> m_captions; ///< of all fields, translated
    std::vector<Place> m_places;         ///< ordered by index
    std::vector<Misread> m_misread;
    AngleText m_angles{0};
    basalt::LocalTimes m_times;
    SolutionTypeNames m_solutions;
    std::string m_loft;
};
