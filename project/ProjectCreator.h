#pragma once

#include "protocol/Outcome.h"

#include <functional>

class IDictionary;
class QByteArray;
struct ProjectPlace;

/// Makes the files of a new project in an existing folder: project file, an empty database, and
/// the parameter files of the installation.
///
/// Files of the same names that stand there are kept: they are renamed with the present time as
/// their ending, such as ".20260131-174500". On a failure they get their names back, and the files
/// of the new project are removed.
namespace ProjectCreator {

inline constexpr const char* kDatabase = "template.db";

/// Reads a file of the installation that new projects begin with.
[[nodiscard]] Outcome readTemplate(const char* name, QByteArray& content);

/// Fills the dictionary of a new project: where, when and by which version it was made, and the
/// current coordinate system, from which it starts.
void describe(const ProjectPlace& place, IDictionary& project);

/// \param project  the project dictionary, see ProjectFile
/// \param fill     writes into the new database and parameter files; without it they stay as those
///                 of the installation
[[nodiscard]] Outcome create(const ProjectPlace& place, const IDictionary& project,
                             const std::function<Outcome()>& fill = {});

/// Makes an empty database where the project's database is missing and there is no copy of an
/// interrupted save either. Does nothing otherwise.
[[nodiscard]] Outcome replaceDatabase(const ProjectPlace& place);

} // namespace ProjectCreator
