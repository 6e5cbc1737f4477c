#pragma once

namespace lum {

/// Sets SQLite up so that connections on several threads do not wait for one another. `main` calls
/// it before anything uses SQLite, PROJ included; a later call is refused and logged. Without it
/// everything works, only slower.
void setUpDatabase();

} // namespace lum
