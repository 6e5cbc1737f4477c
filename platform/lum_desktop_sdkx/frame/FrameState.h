#pragma once

#include <QByteArray>

/// How the user left the main frame, kept in "frame.xml" in the settings folder.
struct FrameState
{
    QByteArray geometry; ///< as QWidget::saveGeometry
    QByteArray toolBars; ///< as QMainWindow::saveState
    QByteArray docks;    ///< as WindowRegistry::saveState

    /// What was saved last; empty when there is nothing or it cannot be read.
    [[nodiscard]] static FrameState load();

    /// Why it could not be written stands in the log; nothing else comes of it.
    void save() const;
};
