#pragma once

#include "model/DesignPoint.h"
#include "model/RecordTexts.h"

class IDictionary;

/// A design point as a row of the table SurveyLineItem.
namespace DesignRecord {

inline constexpr const char* kTable = "SurveyLineItem";
inline constexpr const char* kColumns =
    "line_num,point_num,north,east,elevation,azimuth,type,status";
inline constexpr std::size_t kColumnCount = 8;

/// The texts of `kColumns`, in place of what `texts` held.
void write(const DesignPoint& point, RecordTexts& texts);

/// Reads the rows of one statement or record set, which all have the columns of the first.
class Reader
{
public:
    /// What is missing or no number reads as 0.
    [[nodiscard]] DesignPoint read(const IDictionary& row);

private:
    std::array<std::size_t, kColumnCount> m_places{};
    bool m_isReady = false;
};

} // namespace DesignRecord
