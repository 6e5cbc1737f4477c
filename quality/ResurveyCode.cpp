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
