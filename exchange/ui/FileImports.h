#pragma once

#include <QString>

class IDesktopHost;

/// Imports with their questions and messages, for the trees, the menu and dropped files. Each is
/// for an open project, asks for a file unless it gets a path, and tells what came of it.
namespace FileImports {

/// Each announces that the points are new. A file with findings opens their list.
/// \returns whether the project has got points; false also when the user has cancelled
bool importDesignCsv(IDesktopHost& host, const QString& path = {});
bool importSurveyCsv(IDesktopHost& host, const QString& path = {});
bool importSurveyDatabase(IDesktopHost& host, const QString& path = {});

/// Whether the file is named as those are that `importFile` takes.
[[nodiscard]] bool canImport(const QString& path);

/// Imports a file that comes from outside as what it is. Of a CSV file that does not tell, the user
/// is asked. Without an open project the user is told that there must be one.
void importFile(IDesktopHost& host, const QString& path);

} // namespace FileImports
