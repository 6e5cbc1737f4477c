#include "views/statistics/ChosenGroups.h"

#include "lum_sdk/GroupedNumber.h"
#include "views/statistics/StatisticsTableModel.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

using statistics::GroupKey;
using statistics::KeyValue;

constexpr std::size_t kNamed = 3; // groups that are named, not counted

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ChosenGroups)
};

} // namespace

void ChosenGroups::choose(const std::vector<int>& rows)
{
    m_values.clear();
    for (const int row : rows) {
        const auto group = m_model.groupAt(row);
        if (!group)
            return m_values.clear();
        m_values.push_back(m_model.value(*group));
    }
}

void ChosenGroups::follow()
{
    std::erase_if(m_values, [this](const KeyValue& value) { return m_model.rowOf(value) < 0; });
}

std::vector<int> ChosenGroups::rows() const
{
    std::vector<int> rows;
    rows.reserve(m_values.size());
    for (const KeyValue& value : m_values)
        rows.push_back(m_model.rowOf(value));
    return rows;
}

std::vector<std::size_t> ChosenGroups::groups() const
{
    std::vector<std::size_t> groups;
    groups.reserve(m_values.size());
    for (const int row : rows()) {
        if (const auto group = m_model.groupAt(row))
            groups.push_back(*group);
    }
    return groups;
}

std::vector<std::uint32_t> ChosenGroups::places() const
{
    std::vector<std::uint32_t> places;
    for (const std::size_t group : groups()) {
        const auto members = m_model.members(group);
        places.insert(places.end(), members.begin(), members.end());
    }
    std::ranges::sort(places);
    return places;
}

QString ChosenGroups::name() const
{
    if (m_values.size() > kNamed)
        return Texts::tr("%1 groups").arg(lum::groupedNumber(m_values.size()));
    QStringList names;
    for (const std::size_t group : groups())
        names << m_model.name(group);
    return names.join(QLatin1String(", "));
}

bool ChosenGroups::haveDesign() const
{
    return !isEmpty() && (m_model.key() == GroupKey::Line || m_model.key() == GroupKey::PointKind);
}

std::optional<statistics::DesignCount> ChosenGroups::designCount() const
{
    if (!haveDesign())
        return std::nullopt;
    statistics::DesignCount count;
    for (const std::size_t group : groups()) {
        count.designed += m_model.design(group).designed;
        count.left += m_model.design(group).left;
    }
    return count;
}

std::optional<std::vector<PointName>> ChosenGroups::designNames(const DesignPoints& design) const
{
    if (!haveDesign())
        return std::nullopt;
    const bool isOfLines = m_model.key() == GroupKey::Line;
    const auto isChosen = [this](const auto& isIt) { return std::ranges::any_of(m_values, isIt); };
    std::vector<PointName> names;
    for (const auto& line : design) {
        if (isOfLines && !isChosen([&](const KeyValue& value) { return value.text == line.first; }))
            continue;
        for (const DesignPoint& point : line.second) {
            const std::int64_t kind = point.type == 0 ? 0 : 1;
            if (isOfLines || isChosen([&](const KeyValue& value) { return value.number == kind; }))
                names.push_back({point.lineNumber, point.pointNumber});
        }
    }
    return names;
}
