#pragma once

#include "model/PointLines.h"
#include "model/PointName.h"
#include "quality/statistics/SurveySample.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

class StatisticsTableModel;

/// The groups that the user has chosen in the table. They are kept by their values, so that they
/// are found again when the results are others.
class ChosenGroups
{
public:
    /// \param model outlives this
    explicit ChosenGroups(const StatisticsTableModel& model) : m_model(model) {}

    [[nodiscard]] bool isEmpty() const { return m_values.empty(); }
    /// Those of some rows; none when the row of all results is among them.
    void choose(const std::vector<int>& rows);
    void clear() { m_values.clear(); }
    /// To be called when the model has others: lets go of those that are gone.
    void follow();

    [[nodiscard]] std::vector<int> rows() const;
    /// Their results, as places in the sample, ascending.
    [[nodiscard]] std::vector<std::uint32_t> places() const;
    /// "Rover 5432, Rover 5433", or how many they are.
    [[nodiscard]] QString name() const;
    /// Lines and kinds have a design of their own: how much of it there is.
    [[nodiscard]] std::optional<statistics::DesignCount> designCount() const;
    /// The same, which points it has, ascending.
    [[nodiscard]] std::optional<std::vector<PointName>>
    designNames(const DesignPoints& design) const;

private:
    [[nodiscard]] std::vector<std::size_t> groups() const;
    [[nodiscard]] bool haveDesign() const;

    const StatisticsTableModel& m_model;
    std::vector<statistics::KeyValue> m_values;
};
