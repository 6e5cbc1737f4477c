#pragma once

#include <QString>

#include <string_view>

/// How a load or a save ended.
struct StoreResult
{
    bool isDone = false;
    /// What the user has to know, translated: why it failed, or, also of one that succeeded, that
    /// an interrupted save was found. Empty when there is nothing to tell.
    QString message;
};

/// A database's reason for a failure, in the user's words where it is one of the usual ones.
[[nodiscard]] QString databaseReason(std::string_view message);
