#pragma once

class QByteArray;
class QString;

namespace lum {

/// Replaces the file at `path` by one with `content`. It is written to a temporary file, brought to
/// the disk and renamed, so that a crash or a full disk leaves either the old file or the new one.
/// \returns an empty text, or why it failed
[[nodiscard]] QString writeWholeFile(const QString& path, const QByteArray& content);

} // namespace lum
