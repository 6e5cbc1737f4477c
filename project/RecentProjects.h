#pragma once

#include <QStringList>

/// The project files that were opened last, the newest first. The user's settings keep them; what
/// else is found there is passed over.
namespace RecentProjects {

inline constexpr int kMost = 9;

[[nodiscard]] QStringList list();
/// Puts `file` first.
void add(const QString& file);
void remove(const QString& file);

} // namespace RecentProjects
