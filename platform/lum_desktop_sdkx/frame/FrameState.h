#pragma once

#include <QByteArray>

/// The arrangement of the main frame, kept in "frame.xml" in the settings folder.
struct FrameState
{
    QByteArray geometry; ///< as QWidget::saveGeometry
    QByteArray toolBars; ///< as QMainWindow::saveState
    QByteArray docks;    ///< as WindowRegistry::saveState

    /// Reads what was saved last. It is empty when there is no file or it cannot be read.
    [[nodiscard]] static FrameState load();

    /// When the file cannot be written, the log says why, and the program goes on.
    void save() const;
};
