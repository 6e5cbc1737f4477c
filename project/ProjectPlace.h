#pragma once

#include <QString>

/// Where a project lies: its folder, its name, and the project file that the user picks.
struct ProjectPlace
{
    QString folder;
    QString name;
    QString file;

    /// A project to be made: a folder of the project's name in `location`. The extension is the
    /// system configuration's.
    [[nodiscard]] static ProjectPlace planned(const QString& location, const QString& name);

    /// The project of a project file: its folder, and the name up to the first dot.
    [[nodiscard]] static ProjectPlace ofFile(const QString& file);

    /// The same from a folder and a name, as the system status holds them.
    [[nodiscard]] static ProjectPlace in(const QString& folder, const QString& name);

    [[nodiscard]] QString database() const;
};

/// The configured extension of project files, without a dot.
[[nodiscard]] QString projectExtension();

/// Why no project can be called so, a translated sentence; empty for a good name. A name must do as
/// a file name on every system that the project may be carried to, and holds no dot, since a
/// project's name ends at the first one.
[[nodiscard]] QString projectNameFault(const QString& name);

/// Why no project can be made in this folder; empty for a good one.
[[nodiscard]] QString projectLocationFault(const QString& location);
