#include "exchange/SolutionTypeNames.h"

#include "lum_sdk/Text.h"
#include "model/CodeTables.h"

namespace {
constexpr std::size_t kMostRemembered = 64; ///< a faulty file may hold any number of names
} // namespace

std::string_view SolutionTypeNames::name(int code)
{
    auto found = m_names.find(code);
    if (found == m_names.end()) {
        if (m_names.size() >= kMostRemembered)
            m_names.clear();
        found = m_names.emplace(code, solutionTypeText(code, m_language).toStdString()).first;
    }
    return found->second;
}

int SolutionTypeNames::code(std::string_view name)
{
    auto found = m_codes.find(name);
    if (found == m_codes.end()) {
        if (m_codes.size() >= kMostRemembered)
            m_codes.clear();
        found = m_codes.emplace(name, solutionTypeCode(lum::toQString(name), m_language)).first;
    }
    return found->second;
}
