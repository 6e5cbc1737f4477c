#pragma once

class QByteArray;
class QString;

namespace lum {

/// Puts `content` into the file at `path`, over what stands there: written aside, brought to the
/// disk and renamed, so that a crash or a full disk leaves either the old file or the new one.
/// \returns an empty text, or why it failed
[[nodiscard]] QString writeWholeFile(const QString& path, const QByteArray& content);

} // namespace lum
