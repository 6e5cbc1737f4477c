#pragma once

#include "plots/PlotData.h"
#include "plots/PlotLook.h"

#include <cstdint>
#include <vector>

/// The groups of a key that have the most results, each in a colour of its own, the others in one.
class GroupClasses
{
public:
    /// \param places of the results to be shown
    GroupClasses(const PlotData& data, const std::vector<std::uint32_t>& places,
                 statistics::GroupKey key, const PlotLook& look);

    /// How many groups have a colour of their own.
    [[nodiscard]] std::size_t ownCount() const { return m_own.size(); }
    /// The place of a result's class: `ownCount` for others.
    [[nodiscard]] std::size_t classOf(const statistics::Observation& result) const
    {
        return m_classes[result.key(m_key)];
    }
    /// The colours of the classes, that of the others last.
    [[nodiscard]] QColor color(std::size_t classPlace) const;
    /// The group's name, or "others (12)".
    [[nodiscard]] QString name(std::size_t classPlace) const;
    /// How many classes have results.
    [[nodiscard]] std::size_t classCount() const { return m_own.size() + (m_others > 0 ? 1 : 0); }

    // The same for `MarkSeries`, where the others lie below.
    [[nodiscard]] std::uint8_t markColorOf(const statistics::Observation& result) const
    {
        const std::size_t place = classOf(result);
        return static_cast<std::uint8_t>(place == m_own.size() ? 0 : place + 1);
    }
    [[nodiscard]] std::vector<QColor> markColors() const;

private:
    statistics::GroupKey m_key;
    PlotLook m_look;
    std::vector<QString> m_own;
    std::vector<std::size_t> m_classes; ///< by value of the key
    std::size_t m_others = 0;           ///< groups
};
