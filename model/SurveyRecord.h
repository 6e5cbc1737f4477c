#pragma once

#include "model/RecordTexts.h"
#include "model/SurveyColumns.h"

#include <string>
#include <vector>

class IDictionary;

/// A survey result as a row of the table ExplorationResultItem.
namespace SurveyRecord {

inline constexpr const char* kTable = "ExplorationResultItem";

/// The columns in the order written, comma-separated.
[[nodiscard]] std::string columns();

/// The texts of `columns()`, in place of what `texts` held; the point number as it is written.
void write(const SurveyPoint& point, RecordTexts& texts);

/// Reads the rows of one statement or record set, which all have the columns of the first.
class Reader
{
public:
    /// The row as it stands, to be filed with `SurveyPointFiler`. What is missing or no number
    /// reads as 0; the age of the corrections loses its decimals.
    [[nodiscard]] SurveyPoint read(const IDictionary& row);

private:
    struct Place
    {
        std::size_t index;
        const SurveyColumn* column;
    };
    std::vector<Place> m_places; ///< the columns that the rows have
};

} // namespace SurveyRecord
