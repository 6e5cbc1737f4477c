#include "model/CodeTables.h"

#include <algorithm>
#include <array>

namespace {

struct SolutionType
{
    int code;
    const char* name;
};

// Of a name that stands twice, reading it gives the first code.
constexpr std::array<SolutionType, 7> kSolutionTypes{{
    {0, QT_TRANSLATE_NOOP("CodeTables", "invalid")},
    {1, QT_TRANSLATE_NOOP("CodeTables", "single")},
    {2, QT_TRANSLATE_NOOP("CodeTables", "differential")},
    {3, QT_TRANSLATE_NOOP("CodeTables", "differential")},
    {4, QT_TRANSLATE_NOOP("CodeTables", "fixed")},
    {5, QT_TRANSLATE_NOOP("CodeTables", "float")},
    {7, QT_TRANSLATE_NOOP("CodeTables", "base")},
}};
constexpr const char* kUnknownSolution = QT_TRANSLATE_NOOP("CodeTables", "unknow"); // spelled so

constexpr std::array<const char*, 34> kObstacles{
    QT_TRANSLATE_NOOP("CodeTables", "undefined"),
    QT_TRANSLATE_NOOP("CodeTables", "houses"),
    QT_TRANSLATE_NOOP("CodeTables", "buildings"),
    QT_TRANSLATE_NOOP("CodeTables", "church"),
    QT_TRANSLATE_NOOP("CodeTables", "temple"),
    QT_TRANSLATE_NOOP("CodeTables", "gas station"),
    QT_TRANSLATE_NOOP("CodeTables", "parking lot"),
    QT_TRANSLATE_NOOP("CodeTables", "factory"),
    QT_TRANSLATE_NOOP("CodeTables", "mine"),
    QT_TRANSLATE_NOOP("CodeTables", "gas well"),
    QT_TRANSLATE_NOOP("CodeTables", "military base"),
    QT_TRANSLATE_NOOP("CodeTables", "grave yard"),
    QT_TRANSLATE_NOOP("CodeTables", "pond"),
    QT_TRANSLATE_NOOP("CodeTables", "river"),
    QT_TRANSLATE_NOOP("CodeTables", "railway"),
    QT_TRANSLATE_NOOP("CodeTables", "iron tower"),
    QT_TRANSLATE_NOOP("CodeTables", "tunnel"),
    QT_TRANSLATE_NOOP("CodeTables", "culvert"),
    QT_TRANSLATE_NOOP("CodeTables", "bridge"),
    QT_TRANSLATE_NOOP("CodeTables", "cave"),
    QT_TRANSLATE_NOOP("CodeTables", "high way"),
    QT_TRANSLATE_NOOP("CodeTables", "electric pole"),
    QT_TRANSLATE_NOOP("CodeTables", "windmill"),
    QT_TRANSLATE_NOOP("CodeTables", "reservoir"),
    QT_TRANSLATE_NOOP("CodeTables", "dam"),
    QT_TRANSLATE_NOOP("CodeTables", "cliff"),
    QT_TRANSLATE_NOOP("CodeTables", "vegetable field"),
    QT_TRANSLATE_NOOP("CodeTables", "grass field"),
    QT_TRANSLATE_NOOP("CodeTables", "livestock ranch"),
    QT_TRANSLATE_NOOP("CodeTables", "flower bed"),
    QT_TRANSLATE_NOOP("CodeTables", "ravine"),
    QT_TRANSLATE_NOOP("CodeTables", "gutter"),
    QT_TRANSLATE_NOOP("CodeTables", "building"),
    QT_TRANSLATE_NOOP("CodeTables", "pipeline"),
};

QString translated(const char* name, const Language& language = {})
{
    return language.text("CodeTables", name);
}

} // namespace

QString solutionTypeText(int code, const Language& language)
{
    const auto* const found =
        std::find_if(kSolutionTypes.begin(), kSolutionTypes.end(),
                     [code](const SolutionType& type) { return type.code == code; });
    return translated(found == kSolutionTypes.end() ? kUnknownSolution : found->name, language);
}

int solutionTypeCode(const QString& text, const Language& language)
{
    const auto* const found =
        std::find_if(kSolutionTypes.begin(), kSolutionTypes.end(), [&](const SolutionType& type) {
            return translated(type.name, language) == text;
        });
    return found == kSolutionTypes.end() ? -1 : found->code;
}

QString obstacleText(int code)
{
    const bool isKnown = code > 0 && code < static_cast<int>(kObstacles.size());
    return translated(kObstacles[isKnown ? static_cast<std::size_t>(code) : 0]);
}

QString measureModeText(int mode, const Language& language)
{
    return translated(mode == 0 ? QT_TRANSLATE_NOOP("CodeTables", "loft")
                                : QT_TRANSLATE_NOOP("CodeTables", "survey"),
                      language);
}
