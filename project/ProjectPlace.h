#pragma once

#include <QString>

/// Where a project lies: its folder, its name, and the project file that the user picks.
struct ProjectPlace
{
    QString folder;
    QString name;
    QString file;

    /// A new project: its folder lies in `location` and has the project's name.
    [[nodiscard]] static ProjectPlace planned(const QString& location, const QString& name);

    /// The project of a project file: its folder, and the name up to the first dot.
    [[nodiscard]] static ProjectPlace ofFile(const QString& file);

    /// The project of this folder and name, as the system status holds them.
    [[nodiscard]] static ProjectPlace in(const QString& folder, const QString& name);

    [[nodiscard]] QString database() const;

    /// Whether `path` names one of the project's files, in whatever spelling and through whatever
    /// links. False of an empty place.
    [[nodiscard]] bool owns(const QString& path) const;
};

/// The extension of project files in the system configuration, without a dot.
[[nodiscard]] QString projectExtension();

/// Why no project can have this name, a translated sentence; empty for a good name. A project may
/// be carried to other systems, so the name must be a file name on all of them. It holds no dot,
/// since the name of a project file ends at the first one.
[[nodiscard]] QString projectNameFault(const QString& name);

/// A good name that is near to a bad one, such as "Block 3-2" for "Block 3.2"; empty when there is
/// none.
[[nodiscard]] QString projectNameProposal(const QString& name);

/// Whether the file is named as project files are.
[[nodiscard]] bool hasProjectSuffix(const QString& file);

/// Why a file of this name is no project file, a translated sentence; empty when it may be one.
[[nodiscard]] QString projectSuffixFault(const QString& file);

/// Why no project can be made in this folder, a translated sentence; empty for a good folder.
[[nodiscard]] QString projectLocationFault(const QString& location);

/// Why no file that is handed over can have this name, a translated sentence; empty for a good
/// name. It must be one on all systems.
[[nodiscard]] QString fileNameFault(const QString& name);

/// Why no file can be written in this folder, a translated sentence; empty for a good folder.
[[nodiscard]] QString exportFolderFault(const QString& location);
