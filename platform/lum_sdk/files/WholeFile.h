#pragma once

class QByteArray;
class QString;

namespace lum {

/// Replaces the file at `path` by one with `content`. It is written to a temporary file, brought to
/// the disk and renamed, so that a crash or a full disk leaves either the old file or the new one.
/// \returns an empty text, or why it failed
[[nodiscard]] QString writeWholeFile(const QString& path, const QByteArray& content);

/// Whether a device or a pipe stands at `path`; no file is ever put in its place, not even for a
/// user who may do that.
[[nodiscard]] bool isDevice(const QString& path);

} // namespace lum
