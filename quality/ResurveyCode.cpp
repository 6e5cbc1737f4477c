#include "quality/ResurveyCode.h"

std::optional<std::string> resurveyCode(const std::string& entered)
{
    if (entered.size() != 1)
        return std::nullopt;
    char letter = entered[0];
    if (letter >= 'a' && letter <= 'z')
        letter = static_cast<char>(letter - 'a' + 'A');
    if (letter < 'A' || letter > 'Z' || letter == 'C')
        return std::nullopt;
    return std::string(1, letter);
}

std::string withoutCode(std::string_view number, std::string_view code)
{
    std::string rest;
    std::size_t start = 0;
    for (std::size_t found = code.empty() ? std::string_view::npos : number.find(code);
         found != std::string_view::npos; found = number.find(code, start)) {
        rest += number.substr(start, found - start);
        start = found + code.size();
    }
    return rest += number.substr(start);
}
