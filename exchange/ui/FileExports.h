#pragma once

#include <QStringList>

class IDesktopHost;
class QWidget;

/// Exports with their questions and messages, for the trees and the menu. Each is for an open
/// project, asks for the file, tells what came of it, and offers to open what was written where
/// another program can.
namespace FileExports {

enum class Form
{
    Csv,
    Database, ///< of the design only
    Kml
};

void exportDesign(IDesktopHost& host, Form form, const QStringList& lines, bool onlyUnsurveyed);
void exportSurvey(IDesktopHost& host, Form form, const QStringList& lines);

/// The numbers of all lines of the project, in their order.
[[nodiscard]] QStringList allDesignLines();
[[nodiscard]] QStringList allSurveyLines();

/// "Export Succeed, Open it?"; on yes the file is opened by the desktop. Also for tables.
/// \param details what was written
void offerToOpen(IDesktopHost& host, const QString& path, const QString& details = {});
/// The same with a text of its own, above a dialog.
void offerToOpen(QWidget* parent, const QString& path, const QString& text, const QString& details);

/// Has the desktop open a file or a folder. Tells when it cannot.
void open(QWidget* parent, const QString& path);

} // namespace FileExports
