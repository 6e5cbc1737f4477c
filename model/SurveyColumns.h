#pragma once

#include "model/SurveyPoint.h"

#include <QStringList>

#include <array>
#include <cstdint>
#include <string>
#include <variant>

/// One field of a survey result: how it is named, shown and stored.
struct SurveyColumn
{
    using Member = std::variant<std::string SurveyPoint::*, double SurveyPoint::*,
                                std::int32_t SurveyPoint::*, std::int64_t SurveyPoint::*>;

    const char* key;     ///< also the column of the table ExplorationResultItem
    const char* caption; ///< source text
    Member member;
    int decimals = 0; ///< of a double in the database; `kGeneral` for six significant digits
};

inline constexpr int kGeneral = -1;
inline constexpr std::size_t kSurveyColumnCount = 50;
/// The one field that is shown and not stored.
inline constexpr const char* kSeaHeight = "sea_height";

/// All fields, in the order in which they are shown, exchanged and stored.
[[nodiscard]] const std::array<SurveyColumn, kSurveyColumnCount>& surveyColumns();

/// The captions of all fields, translated, in the same order.
[[nodiscard]] QStringList surveyCaptions();
