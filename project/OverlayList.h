#pragma once

#include <QString>

#include <vector>

class IDictionary;

/// A picture that lies under the survey, as the project remembers it.
struct OverlayImage
{
    QString path; ///< absolute
    bool isVisible = true;
    double opacity = 1; ///< 0 to 1

    bool operator==(const OverlayImage&) const = default;
};

/// The overlay images in the description of a project, the topmost first. The path of a picture in
/// the folder of the project, or in the folder around it, is stored relative to the project, so
/// that both can be carried elsewhere together. Without pictures the description holds nothing.
namespace OverlayList {

/// \param folder of the project
[[nodiscard]] std::vector<OverlayImage> read(const IDictionary& project, const QString& folder);

void write(const std::vector<OverlayImage>& images, const QString& folder, IDictionary& project);

/// For a description that goes from one folder to another while the pictures stay.
void moveTo(const QString& newFolder, const QString& oldFolder, IDictionary& project);

} // namespace OverlayList
