#include "lum_desktop_sdkx/dialogs/SilencedBoxes.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"

#include <QStringList>

namespace SilencedBoxes {

namespace {

constexpr const char* kSetting = "silenced_boxes"; ///< their keys, separated by commas

QStringList keys()
{
    return lum::toQString(get_system_ini_parameter().dictionary().text(kSetting))
        .split(QLatin1Char(','), Qt::SkipEmptyParts);
}

void store(const QStringList& keys)
{
    SystemParameter& settings = get_system_ini_parameter();
    settings.dictionary().set(kSetting, keys.join(QLatin1Char(',')).toStdString());
    settings.save(); // has logged why it failed; the choice holds for this session
}

} // namespace

bool contains(const char* key)
{
    return keys().contains(QLatin1String(key));
}

void add(const char* key)
{
    if (!contains(key))
        store(keys() << QString::fromLatin1(key));
}

int clear()
{
    const int count = keys().size();
    if (count > 0)
        store({});
    return count;
}

} // namespace SilencedBoxes
