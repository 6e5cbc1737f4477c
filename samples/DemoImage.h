#pragma once

class QString;

namespace demo {

/// The name of the image beside the files of the demo survey.
inline constexpr const char* kImageFile = "ground.tif";

/// Writes an aerial image of the survey's ground as a GeoTIFF of about 6 by 6 km with overviews, in
/// the coordinate system of the survey.
/// \returns an empty text, or why it could not be written
[[nodiscard]] QString writeDemoImage(const QString& path);

} // namespace demo
