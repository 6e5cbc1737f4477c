#include "IncludeRules.h"

#include <filesystem>
#include <istream>
#include <regex>
#include <set>

namespace {

enum class Room
{
    WithoutQt,
    WithoutWidgets,
    WithWidgets
};

struct Floor
{
    Room room;
    std::vector<std::string> folders;
};

using Floors = std::vector<Floor>;

/// From the ground up. A file includes files of its own folder and of lower floors; folders beside
/// each other on a floor stay apart. A file belongs to the longest folder that fits.
const Floors& floors()
{
    static const Floors kFloors = {
        {Room::WithoutQt, {"platform/basalt_utilities"}},
        {Room::WithoutWidgets, {"platform/lum_sdk"}},
        {Room::WithoutWidgets, {"platform/lum_sdk/raster"}},
        {Room::WithoutWidgets, {"protocol", "model"}},
        {Room::WithoutWidgets, {"exchange", "quality", "design", "map"}},
        {Room::WithoutWidgets, {"quality/statistics", "quality/colors"}},
        {Room::WithoutWidgets, {"quality/problems", "map/sheet"}},
        {Room::WithoutWidgets, {"reports"}},
        {Room::WithoutWidgets, {"project", "samples"}},
        {Room::WithWidgets, {"platform/lum_desktop_sdkx"}}, // the interfaces at its top
        {Room::WithWidgets, {"platform/lum_desktop_sdkx/dialogs"}},
        {Room::WithWidgets, {"platform/lum_desktop_sdkx/controls"}},
        {Room::WithWidgets, {"platform/lum_desktop_sdkx/coords"}},
        {Room::WithWidgets, {"platform/lum_desktop_sdkx/map"}},
        {Room::WithWidgets, {"platform/lum_desktop_sdkx/frame"}},
        {Room::WithWidgets, {"project/ui"}}, // what all user interface shares: the open project,
        {Room::WithWidgets, {"map/ui"}},     // a point shown on the map, and files
        {Room::WithWidgets, {"exchange/ui", "plots"}}, // that are read and written
        {Room::WithWidgets, {"reports/daily"}},
        {Room::WithWidgets,
         {"quality/ui", "design/ui", "reports/ui", "views", "views/find", "views/history",
          "views/tables", "views/trees"}},
        {Room::WithWidgets, {"views/problems", "views/statistics"}}, // beside the tables
        {Room::WithWidgets, {"app"}},
    };
    return kFloors;
}

/// A folder and its height in the table; no folder when a path lies on no floor.
struct Place
{
    std::string folder;
    std::size_t height = 0;
};

Place placeOf(const std::string& path)
{
    Place place;
    for (std::size_t height = 0; height < floors().size(); ++height) {
        for (const std::string& folder : floors()[height].folders) {
            if (path.rfind(folder + '/', 0) == 0 && folder.size() > place.folder.size())
                place = {folder, height};
        }
    }
    return place;
}

/// The folders of the platform are include roots of their own.
std::string fromRoot(const std::string& included)
{
    const std::string inPlatform = "platform/" + included;
    return placeOf(inPlatform).folder.empty() ? included : inPlatform;
}

bool isPlatform(const Place& place)
{
    return place.folder.rfind("platform/", 0) == 0;
}

bool isQt(const std::string& header)
{
    return std::regex_match(header, std::regex("Q[A-Zt].*|q[a-z0-9_]+\\.h"));
}

bool isWidget(std::string header)
{
    static const std::set<std::string> kHeaders = [] {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(WIDGET_HEADERS_FOLDER))
            names.insert(entry.path().filename().string());
        return names;
    }();
    const std::string module = "QtWidgets/";
    if (header.rfind(module, 0) == 0)
        header.erase(0, module.size());
    return kHeaders.count(header) > 0 || header.rfind("qtadvanceddocking/", 0) == 0 ||
           header.rfind("qwt_", 0) == 0;
}

std::string foreignFault(const Place& from, const std::string& header)
{
    const Room room = floors()[from.height].room;
    if (room == Room::WithoutQt && (isQt(header) || isWidget(header)))
        return from.folder + " knows nothing of Qt, <" + header + ">";
    if (room == Room::WithoutWidgets && isWidget(header))
        return from.folder + " knows nothing of widgets, <" + header + ">";
    return {};
}

std::string ownFault(const Place& from, const Place& to)
{
    if (to.folder == from.folder)
        return {};
    if (to.height > from.height)
        return from.folder + " includes upward, from " + to.folder;
    if (to.height == from.height)
        return from.folder + " includes from its neighbour " + to.folder;
    if (isPlatform(from) && !isPlatform(to))
        return from.folder + " is of the platform and includes from the product's " + to.folder;
    return {};
}

} // namespace

std::string includeFault(const std::string& file, const std::string& line)
{
    const Place from = placeOf(file);
    if (from.folder.empty())
        return "no floor of the table holds this file";

    static const std::regex kInclude(R"(\s*#\s*include\s*([<"])([^>"]+)[>"].*)");
    std::smatch match;
    if (line.find("include") == std::string::npos || !std::regex_match(line, match, kInclude))
        return {};
    const std::string included = match[2];
    const Place to = placeOf(fromRoot(included));
    if (!to.folder.empty())
        return ownFault(from, to);
    if (match[1] == "\"")
        return "\"" + included + "\" is written neither from the root nor from platform/";
    return foreignFault(from, included);
}

std::vector<std::string> includeFaults(const std::string& file, std::istream& text)
{
    std::vector<std::string> faults;
    const auto add = [&](int number, const std::string& fault) {
        if (!fault.empty())
            faults.push_back(file + ':' + std::to_string(number) + ": " + fault);
    };
    const bool isHeader = std::filesystem::path(file).extension() == ".h";
    std::string line;
    for (int number = 1; std::getline(text, line) || number == 1; ++number) {
        if (number == 1 && isHeader && line != "#pragma once")
            add(number, "a header begins with #pragma once");
        add(number, includeFault(file, line));
    }
    return faults;
}
