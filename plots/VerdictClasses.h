#pragma once

#include "plots/StatisticsPlot.h"

#include <array>

/// Results in the colours of their verdict. The failed ones lie above the others.
class VerdictClasses
{
public:
    explicit VerdictClasses(const PlotLook& look);

    /// The place of a result's colour; counts it.
    [[nodiscard]] std::uint8_t colorOf(const statistics::Observation& result);
    [[nodiscard]] std::vector<QColor> colors() const;

    struct Entry
    {
        QColor color;
        QString text; ///< with the number of results
    };
    /// Of the verdicts that have results, the most important first.
    [[nodiscard]] std::vector<Entry> legend() const;

private:
    const PlotLook& m_look;
    std::array<std::size_t, statistics::kVerdicts> m_counts{};
};
