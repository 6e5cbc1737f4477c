#pragma once

#include <QString>

/// Who changes the project, and where.
struct HistoryAuthor
{
    /// Names the user in the user's settings; without it the login name does.
    static constexpr const char* kPersonSetting = "person";

    QString person;
    QString machine;

    [[nodiscard]] static HistoryAuthor current();
};
