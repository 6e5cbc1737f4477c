#pragma once

#include <QString>

#include <map>
#include <string>
#include <string_view>
#include <vector>

/// A row of a property grid's control file: what the user reads beside a parameter. All texts are
/// translated.
struct ControlRow
{
    QString group;
    std::string key;
    QString caption;
    QString unit;
    std::string editor;   ///< "number", "angle", "choice", ...
    std::string fallback; ///< the value of a parameter that is not there
    std::map<std::string, QString> choices;

    /// A value as the user reads it, with its unit: "6378137 m", "117°", "UTM".
    [[nodiscard]] QString textOf(std::string_view value) const;
};

/// The rows of an installed control file, such as "QCParam". None when it cannot be read, which the
/// log tells.
[[nodiscard]] std::vector<ControlRow> readControlRows(std::string_view page);

/// The limits of the problems as rows; they have no control file.
[[nodiscard]] std::vector<ControlRow> problemLimitRows();

/// Null when there is no such row.
[[nodiscard]] const ControlRow* findControlRow(const std::vector<ControlRow>& rows,
                                               std::string_view key);
