#pragma once

#include <map>
#include <string>
#include <string_view>

/// The code table of solution types for columns of them: each name is looked up once.
class SolutionTypeNames
{
public:
    /// Valid until the next call.
    [[nodiscard]] std::string_view name(int code);
    [[nodiscard]] int code(std::string_view name);

private:
    std::map<int, std::string> m_names;
    std::map<std::string, int, std::less<>> m_codes;
};
