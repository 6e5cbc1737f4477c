#pragma once

#include "model/DesignPoint.h"
#include "model/RecordTexts.h"

#include <array>
#include <string>

class IDictionary;

/// A design point as a row of the table SurveyLineItem.
namespace DesignRecord {

struct Column
{
    const char* key;
    bool isInteger;
};

inline constexpr const char* kTable = "SurveyLineItem";
/// In the order in which `write` and `Reader` go through them.
inline constexpr auto kColumns = std::to_array<Column>({{"line_num", false},
                                                        {"point_num", false},
                                                        {"north", false},
                                                        {"east", false},
                                                        {"elevation", false},
                                                        {"azimuth", false},
                                                        {"type", true},
                                                        {"status", true}});

/// The keys of the columns, comma-separated.
[[nodiscard]] std::string columns();

/// Puts the texts of the columns into `texts`, in place of what it held.
void write(const DesignPoint& point, RecordTexts& texts);

/// Reads the rows of one statement or record set, which all have the columns of the first.
class Reader
{
public:
    /// A field that is missing or no number reads as 0.
    [[nodiscard]] DesignPoint read(const IDictionary& row);

private:
    std::array<std::size_t, kColumns.size()> m_places{};
    bool m_isReady = false;
};

} // namespace DesignRecord
