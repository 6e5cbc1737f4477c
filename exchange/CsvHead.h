#pragma once

#include <QStringList>

#include <optional>

/// The first lines of a CSV file, and what they tell of its points.
struct CsvHead
{
    enum class Kind
    {
        Unknown,
        Design,
        Survey
    };

    Kind kind = Kind::Unknown;
    QStringList lines; ///< the first that are not empty, shortened to be shown
};

/// Looks at the beginning of a file, however large it is. It tells of design points by its heading
/// or a row of theirs, and of survey results by its heading, each in any language of the program.
/// \returns nothing for a file that cannot be read or holds nothing: any import says so
[[nodiscard]] std::optional<CsvHead> readCsvHead(const QString& path);
