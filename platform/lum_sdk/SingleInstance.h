#pragma once

#include <QString>

/// Whether another process of this user runs the program already. The first process to ask holds
/// the lock until it ends, also by a crash.
/// \param program the program as it was started; its file name alone tells programs apart
/// \param hold 1 keeps the lock for this process when it is free, 0 only looks
[[nodiscard]] bool instance_is_run(const QString& program, int hold);

namespace lum {

/// A file by which the processes of one program and user find each other; it may not exist.
/// \param ending  with its dot
[[nodiscard]] QString instanceFile(const QString& program, const QString& ending);

} // namespace lum
