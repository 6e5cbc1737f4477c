#pragma once

#include <QStringList>

class IDesktopHost;

/// How overlay images come onto the map: from the file dialog and dropped on the window.
namespace AddOverlays {

/// Whether a file of this name is taken for an image when it is dropped.
[[nodiscard]] bool canAdd(const QString& path);

/// Adds the images to the open project, shows the list of layers, and tells how many there are and
/// which cannot be shown. For large ones without overviews it offers to build them.
void add(IDesktopHost& host, const QStringList& paths);

} // namespace AddOverlays
