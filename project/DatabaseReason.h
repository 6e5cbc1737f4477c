#pragma once

#include <QString>

#include <string_view>

/// The reason of a database's failure for the user: the usual ones in the user's language, with the
/// database's own message in brackets, any other as the database gives it.
[[nodiscard]] QString databaseReason(std::string_view message);
