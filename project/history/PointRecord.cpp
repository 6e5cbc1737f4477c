#include "project/history/PointRecord.h"

#include "basalt_utilities/KeyList.h"

std::vector<std::string> listedColumns(std::string_view columns)
{
    std::vector<std::string> names;
    while (!columns.empty())
        names.emplace_back(next_word3(columns, ','));
    return names;
}
