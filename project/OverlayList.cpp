#include "project/OverlayList.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/Text.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>
#include <string>

namespace OverlayList {

namespace {

constexpr const char* kFile = "file";
constexpr const char* kVisible = "visible";
constexpr const char* kOpacity = "opacity";

std::string key(std::size_t index, const char* value)
{
    return "overlay_" + std::to_string(index + 1) + '_' + value;
}

double readOpacity(const IDictionary& project, std::size_t index)
{
    const double opacity = project.number(key(index, kOpacity), 1);
    return opacity >= 0 && opacity <= 1 ? opacity : 1;
}

QString stored(const QString& path, const QString& folder)
{
    const QString project = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    const QString around = project.left(project.lastIndexOf(QLatin1Char('/')));
    // Everything lies in the root of the file system; that says nothing of a common place.
    const QString common = around.isEmpty() ? project : around;
    const QString clean = QDir::cleanPath(path);
    return clean.startsWith(common + QLatin1Char('/')) ? QDir(project).relativeFilePath(clean)
                                                       : clean;
}

} // namespace

std::vector<OverlayImage> read(const IDictionary& project, const QString& folder)
{
    const QDir base(QFileInfo(folder).absoluteFilePath());
    std::vector<OverlayImage> images;
    for (std::size_t i = 0; const auto file = project.find(key(i, kFile)); ++i) {
        if (file->empty())
            continue;
        images.push_back({QDir::cleanPath(base.absoluteFilePath(lum::toQString(*file))),
                          project.integer(key(i, kVisible), 1) != 0, readOpacity(project, i)});
    }
    return images;
}

void write(const std::vector<OverlayImage>& images, const QString& folder, IDictionary& project)
{
    for (std::size_t i = 0; i < images.size(); ++i) {
        project.set(key(i, kFile), stored(images[i].path, folder).toStdString());
        project.set(key(i, kVisible), images[i].isVisible ? "1" : "0");
        dic_set_value(project, key(i, kOpacity), images[i].opacity);
    }
    for (std::size_t i = images.size(); project.remove(key(i, kFile)); ++i) {
        project.remove(key(i, kVisible));
        project.remove(key(i, kOpacity));
    }
}

void moveTo(const QString& newFolder, const QString& oldFolder, IDictionary& project)
{
    write(read(project, oldFolder), newFolder, project);
}

} // namespace OverlayList
