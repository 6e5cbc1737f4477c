#pragma once

#include "basalt_utilities/Dictionary.h"

#include <string>

/// A set of parameters that an installed file gives and, where a user file is named, the user
/// overrides. The user file holds only what differs from the installed values.
class SystemParameter
{
public:
    SystemParameter() = default;
    explicit SystemParameter(std::string userFile);

    /// Reads the installed file, then the user's values over it. A user file that cannot be read
    /// is logged and ignored.
    /// \returns false, with the dictionary as it was, when the installed file cannot be read
    bool load(const std::string& path);

    /// Writes what differs from the installed values to the user file; why that failed is logged.
    bool save() const;

    [[nodiscard]] IDictionary& dictionary() { return m_values; }

private:
    std::string m_userFile;
    basalt::Dictionary m_installed;
    basalt::Dictionary m_values;
};
