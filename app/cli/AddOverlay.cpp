#include "app/cli/AddOverlay.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "lum_sdk/raster/RasterImage.h"
#include "project/OverlayList.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

namespace {

/// Puts an image on top of the others, or moves it there.
Outcome put(const QString& file, std::vector<OverlayImage>& images)
{
    const lum::RasterImage image(file);
    if (!image.isUsable())
        return Outcome::failed(image.fault());
    OverlayImage overlay{QDir::cleanPath(QFileInfo(file).absoluteFilePath())};
    const auto found = std::find_if(images.begin(), images.end(), [&](const OverlayImage& other) {
        return other.path == overlay.path;
    });
    if (found != images.end()) {
        overlay = *found;
        images.erase(found);
    }
    images.insert(images.begin(), overlay);
    return Outcome::done();
}

} // namespace

Outcome addOverlay(const CliArguments& arguments)
{
    CliProject project;
    Outcome outcome = project.open(arguments.places[0], ProjectAccess::Change);
    if (!outcome.isDone())
        return outcome;
    IDictionary& description = project.manager().project();
    std::vector<OverlayImage> images = OverlayList::read(description, project.place().folder);
    for (const QString& file : arguments.places.mid(1)) {
        if (Outcome adding = put(file, images); !adding.isDone())
            return adding;
    }
    OverlayList::write(images, project.place().folder, description);
    if (Outcome saving = project.save(); !saving.isDone())
        return saving;
    std::printf("images under the map: %zu\n", images.size());
    return outcome;
}
