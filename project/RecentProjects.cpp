#include "project/RecentProjects.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "project/ProjectPlace.h"

namespace RecentProjects {

namespace {

std::string keyOf(int place)
{
    return "recent_project_" + std::to_string(place + 1);
}

void store(const QStringList& files)
{
    SystemParameter& settings = get_system_ini_parameter();
    for (int place = 0; place < kMost; ++place) {
        if (place < files.size())
            settings.dictionary().set(keyOf(place), files[place].toStdString());
        else
            settings.dictionary().remove(keyOf(place));
    }
    settings.save(); // has logged why it failed; the list holds for this session
}

} // namespace

QStringList list()
{
    const IDictionary& settings = get_system_ini_parameter().dictionary();
    QStringList files;
    for (int place = 0; place < kMost; ++place) {
        const QString file = lum::toQString(settings.text(keyOf(place)));
        if (hasProjectSuffix(file))
            files.append(file);
    }
    return files;
}

void add(const QString& file)
{
    QStringList files = list();
    files.removeAll(file);
    files.prepend(file);
    store(files);
}

void remove(const QString& file)
{
    QStringList files = list();
    files.removeAll(file);
    store(files);
}

} // namespace RecentProjects
