#pragma once

class QString;

/// Whether another process of this user runs the program already. The first process to ask holds
/// the lock until it ends, also by a crash.
/// \param program the program as it was started; its file name alone tells programs apart
/// \param hold 1 keeps the lock for this process when it is free, 0 only looks
[[nodiscard]] bool instance_is_run(const QString& program, int hold);
