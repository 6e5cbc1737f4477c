#include "reports/ui/ReportMemory.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "project/ProjectPlace.h"
#include "reports/ReportKinds.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr const char* kFolder = "report_folder"; // setting: with `kProject` for the project's own

/// Stands for the project's name or folder. No file name can hold it.
constexpr QChar kProject = QLatin1Char('*');

std::string wantedKey(const ReportKind& kind)
{
    return std::string("report_wanted_") + kind.name;
}

std::string fileKey(const ReportKind& kind)
{
    return std::string("report_file_") + kind.name;
}

IDictionary& settingsNow()
{
    return get_system_ini_parameter().dictionary();
}

/// `text` with the project's part at its beginning replaced.
QString replacedStart(const QString& text, const QString& from, const QString& to)
{
    return text.startsWith(from) ? to + text.mid(from.size()) : text;
}

} // namespace

bool ReportFiles::isWanted(const ReportKind& kind)
{
    return settingsNow().integer(wantedKey(kind), 1) != 0;
}

QString ReportFiles::fileName(const ReportKind& kind, const ProjectPlace& project)
{
    const QString usual =
        kProject + QLatin1Char(' ') + QLatin1String(kind.fileName) + QLatin1String(kind.ending);
    const QString kept = lum::toQString(settingsNow().text(fileKey(kind)));
    return replacedStart(kept.isEmpty() ? usual : kept, kProject, project.name);
}

QString ReportFiles::folder(const ProjectPlace& project)
{
    const QString kept = lum::toQString(settingsNow().text(kFolder));
    const QString folder = replacedStart(kept, kProject, project.folder);
    return kept.isEmpty() || !QFileInfo(folder).isDir() ? project.folder : folder;
}

void ReportFiles::setWanted(const ReportKind& kind, bool isWanted)
{
    settingsNow().set(wantedKey(kind), isWanted ? "1" : "0");
}

void ReportFiles::setFileName(const ReportKind& kind, const QString& name,
                              const ProjectPlace& project)
{
    settingsNow().set(fileKey(kind), replacedStart(name, project.name, kProject).toStdString());
}

void ReportFiles::setFolder(const QString& folder, const ProjectPlace& project)
{
    const bool isOwn =
        folder == project.folder || folder.startsWith(project.folder + QLatin1Char('/'));
    settingsNow().set(
        kFolder, (isOwn ? replacedStart(folder, project.folder, kProject) : folder).toStdString());
}

void ReportFiles::save()
{
    get_system_ini_parameter()
        .save(); // has logged why it failed; the choice holds for this session
}

ReportMemory& ReportMemory::of(const QString& folder)
{
    static ReportMemory memory;
    static QString project;
    if (folder != project) {
        memory = {};
        project = folder;
    }
    return memory;
}
