#pragma once

#include "model/Language.h"

#include <map>
#include <string>
#include <string_view>

/// The code table of solution types for files with many rows: it translates each name only once.
class SolutionTypeNames
{
public:
    explicit SolutionTypeNames(const Language& language = {}) : m_language(language) {}

    /// The result is valid until the next call.
    [[nodiscard]] std::string_view name(int code);
    [[nodiscard]] int code(std::string_view name);

private:
    Language m_language;
    std::map<int, std::string> m_names;
    std::map<std::string, int, std::less<>> m_codes;
};
