#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "exchange/AngleText.h"
#include "exchange/SolutionTypeNames.h"
#include "exchange/SurveyHeadings.h"
#include "model/SurveyColumns.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Survey points from the lines of a CSV file, whose heading tells where its columns stand. Names
/// of codes and the units of angles are those of the heading's language.
class SurveyRowReader
{
public:
    explicit SurveyRowReader(const SurveyHeadings::Heading& heading);

    /// Sets the fields of the columns in the heading. Blanks around a field are dropped, a missing
    /// field counts as empty, and a number or time that cannot be read is 0.
    /// \returns false when the point has no number
    bool read(std::string_view line, SurveyPoint& point);

    /// What a field that is not empty became.
    enum class Taken
    {
        AsItStands,
        AsZero,         ///< it cannot be read
        AsAnother,      ///< a mark or a name that is not known
        WithoutDecimals ///< in a column of whole numbers
    };

    /// A field of the last line that was not taken as it stands.
    struct Change
    {
        const SurveyColumn* column;
        std::string_view text;
        Taken taken;
    };
    [[nodiscard]] const std::vector<Change>& changes() const { return m_changes; }

    /// A translated sentence about a change.
    [[nodiscard]] QString toText(const Change& change, const SurveyPoint& point);

    /// Whether the last line had more fields than the heading; and a translated sentence about
    /// them.
    [[nodiscard]] bool hasSurplus() const { return m_surplus.has_value(); }
    [[nodiscard]] QString surplusText() const;

    /// Whether the last line had fewer fields than there are captions.
    [[nodiscard]] bool isShort() const { return m_isShort; }

private:
    /// A column of the file.
    struct Place
    {
        std::size_t index;
        const SurveyColumn* column;
    };

    [[nodiscard]] QString became(const SurveyColumn& column, const SurveyPoint& point);
    Taken setField(std::string_view text, const SurveyColumn& column, SurveyPoint& point);

    std::vector<std::string> m_captions; ///< of all fields, in the language of the file
    std::vector<Place> m_places;         ///< ordered by index
    std::size_t m_fieldCount;
    std::size_t m_captionCount;
    std::vector<Change> m_changes;
    std::optional<std::string_view> m_surplus;
    bool m_isShort = false;
    AngleText m_angles;
    basalt::LocalTimes m_times;
    SolutionTypeNames m_solutions;
    std::string m_loft;
    std::string m_survey;
};
