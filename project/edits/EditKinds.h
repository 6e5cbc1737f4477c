#pragma once

#include <QString>

#include <cstddef>
#include <span>
#include <string_view>

/// A kind of change that can be taken back.
struct EditKind
{
    const char* name; ///< in the project's history, which is kept for years: never changed
    /// For the user, context "EditKinds"; %1 is the number of points or problems. Null when nothing
    /// is counted.
    const char* title;
    const char* one;    ///< the title for one point, or where nothing is counted
    const char* plural; ///< for all changes of this kind

    /// "Delete 10,000 results", translated.
    [[nodiscard]] QString titleFor(std::size_t points) const;
    /// "Deletions of results", translated.
    [[nodiscard]] QString pluralTitle() const;
};

namespace EditKinds {

extern const EditKind kImportDesign;
extern const EditKind kImportSurvey;
extern const EditKind kDeleteResults;
extern const EditKind kCorrectResult;
extern const EditKind kCorrectDesign;
extern const EditKind kRenameResults;
extern const EditKind kGenerateDesign;
extern const EditKind kQualityLimits;
extern const EditKind kDesignParameters;
extern const EditKind kCoordSystem;
extern const EditKind kRestore;
extern const EditKind kResolveRepeats;
extern const EditKind kAcceptProblems;
extern const EditKind kEndAcceptances;

/// In the order of lists.
[[nodiscard]] std::span<const EditKind* const> all();
/// Null when there is none of this name.
[[nodiscard]] const EditKind* find(std::string_view name);

} // namespace EditKinds
