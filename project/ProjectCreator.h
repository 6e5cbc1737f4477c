#pragma once

class IDictionary;
class QString;
struct ProjectPlace;

/// Makes the files of a new project, in a folder that stands already: project file, an empty
/// database, and the parameter files of the installation.
///
/// Files of the same names that stand there are not lost: they get the ending of the moment,
/// such as ".20260131-174500". When the making fails they get their names back, and nothing of the
/// new project is left.
namespace ProjectCreator {

/// Fills the dictionary of a new project: where, when and by which version it was made, and the
/// current coordinate system, from which it starts.
void describe(const ProjectPlace& place, IDictionary& project);

/// \param project  the project dictionary, see ProjectFile
/// \returns an empty text, or why it failed, translated
[[nodiscard]] QString create(const ProjectPlace& place, const IDictionary& project);

/// An empty database in the place of one that is gone, with no copy of an interrupted save to take
/// its place; does nothing otherwise.
/// \returns an empty text, or why it failed, translated
[[nodiscard]] QString replaceDatabase(const ProjectPlace& place);

} // namespace ProjectCreator
