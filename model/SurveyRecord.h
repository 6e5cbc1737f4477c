#pragma once

#include "model/RecordTexts.h"
#include "model/SurveyColumns.h"

#include <string>
#include <vector>

class IDictionary;

/// A survey result as a row of the table ExplorationResultItem.
namespace SurveyRecord {

inline constexpr const char* kTable = "ExplorationResultItem";

/// The keys of the stored columns, comma-separated.
[[nodiscard]] std::string columns();

/// Puts the texts of `columns()` into `texts`, in place of what it held.
void write(const SurveyPoint& point, RecordTexts& texts);

/// Reads the rows of one statement or record set, which all have the columns of the first.
class Reader
{
public:
    /// The row as it stands; `SurveyPointFiler` gives it its place. A number that is missing or
    /// cannot be read is 0.
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
