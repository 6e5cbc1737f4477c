#include "project/history/HistoryAuthor.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"

#include <QSysInfo>

#include <pwd.h>
#include <unistd.h>

#include <array>

namespace {

QString loginName()
{
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, 4096> buffer{};
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr)
        return QString::fromLocal8Bit(found->pw_name);
    return QString::number(getuid()); // an account that is known by its number alone
}

} // namespace

HistoryAuthor HistoryAuthor::current()
{
    const QString chosen =
        lum::toQString(get_system_ini_parameter().dictionary().text(kPersonSetting)).trimmed();
    return {chosen.isEmpty() ? loginName() : chosen, QSysInfo::machineHostName()};
}
