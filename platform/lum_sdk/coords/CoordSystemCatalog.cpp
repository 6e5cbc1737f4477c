#include "lum_sdk/coords/CoordSystemCatalog.h"

#include "lum_sdk/coords/EpsgMethods.h"
#include "lum_sdk/coords/ProjHandles.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <tuple>

namespace {

std::string folded(std::string_view text)
{
    std::string result;
    for (const char c : text)
        result += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return result;
}

std::string foldedName(std::string_view name)
{
    std::string result = folded(name);
    if (result.find("gauss-kruger") != std::string::npos)
        result += " gk";
    return result;
}

std::vector<std::string> wordsOf(const std::string& text)
{
    std::vector<std::string> words;
    std::size_t start = 0;
    while ((start = text.find_first_not_of(" /,\t", start)) != std::string::npos) {
        const std::size_t end = std::min(text.find_first_of(" /,\t", start), text.size());
        words.push_back(text.substr(start, end - start));
        start = end;
    }
    return words;
}

enum Rank
{
    Exact,
    CodeBegins,
    NameBegins,
    WordsInName,
    WordsInArea,
    None,
};

Rank rankOf(const CoordSystemEntry& entry, const std::string& name, const std::string& area,
            const std::string& text, const std::vector<std::string>& words)
{
    if (entry.code == text || name == text)
        return Exact;
    if (entry.code.starts_with(text))
        return CodeBegins;
    if (name.starts_with(text))
        return NameBegins;
    const auto inName = [&](const std::string& w) { return name.find(w) != std::string::npos; };
    const auto inArea = [&](const std::string& w) { return area.find(w) != std::string::npos; };
    if (std::all_of(words.begin(), words.end(), inName))
        return WordsInName;
    const bool isInBoth = std::all_of(words.begin(), words.end(), [&](const std::string& word) {
        return inName(word) || inArea(word);
    });
    return isInBoth ? WordsInArea : None;
}

} // namespace

CoordSystemCatalog::CoordSystemCatalog()
{
    const lum::ProjContext context = lum::makeProjContext();
    const lum::ProjOwner<PROJ_CRS_LIST_PARAMETERS> wanted(proj_get_crs_list_parameters_create());
    const PJ_TYPE type = PJ_TYPE_PROJECTED_CRS;
    wanted->types = &type;
    wanted->typesCount = 1;
    int count = 0;
    const lum::ProjOwner<PROJ_CRS_INFO*> list(
        proj_get_crs_info_list_from_database(context.get(), "EPSG", wanted.get(), &count));
    for (int i = 0; list && i < count; ++i) {
        const PROJ_CRS_INFO& info = *list.get()[i];
        if (info.projection_method_name == nullptr ||
            lum::findEpsgMethod(std::string_view(info.projection_method_name)) == nullptr)
            continue;
        if (!m_entries.empty() && m_entries.back().code == info.code)
            continue; // once for each area in which it is used
        m_entries.push_back({info.code, info.name, info.area_name != nullptr ? info.area_name : "",
                             info.west_lon_degree, info.south_lat_degree, info.east_lon_degree,
                             info.north_lat_degree});
        m_names.push_back(foldedName(info.name));
        m_areas.push_back(folded(m_entries.back().area));
    }
}

std::vector<const CoordSystemEntry*> CoordSystemCatalog::search(std::string_view text,
                                                                std::size_t limit) const
{
    std::string wanted = folded(text);
    if (wanted.starts_with("epsg:"))
        wanted.erase(0, std::strlen("epsg:"));
    const std::vector<std::string> words = wordsOf(wanted);
    if (words.empty())
        return {};
    struct Found
    {
        Rank rank;
        bool isOtherDatum; ///< other than WGS 84, the datum of GNSS receivers
        std::size_t length;
        const CoordSystemEntry* entry;
    };
    std::vector<Found> found;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const Rank rank = rankOf(m_entries[i], m_names[i], m_areas[i], wanted, words);
        if (rank != None)
            found.push_back(
                {rank, !m_names[i].starts_with("wgs 84 /"), m_names[i].size(), &m_entries[i]});
    }
    std::stable_sort(found.begin(), found.end(), [](const Found& a, const Found& b) {
        return std::tie(a.rank, a.isOtherDatum, a.length) <
               std::tie(b.rank, b.isOtherDatum, b.length);
    });
    std::vector<const CoordSystemEntry*> entries;
    for (std::size_t i = 0; i < std::min(limit, found.size()); ++i)
        entries.push_back(found[i].entry);
    return entries;
}
