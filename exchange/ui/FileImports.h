#pragma once

#include <QString>

class IDesktopHost;

/// Imports with their questions and messages, for the trees, the menu and dropped files. Each is
/// for an open project, asks for a file unless it gets a path, and tells what came of it.
namespace FileImports {

/// Each announces that the points are new.
/// \returns whether the project has got points; false also when the user has cancelled
bool importDesignCsv(IDesktopHost& host, const QString& path = {});
bool importSurveyCsv(IDesktopHost& host, const QString& path = {});
bool importSurveyDatabase(IDesktopHost& host, const QString& path = {});

} // namespace FileImports
