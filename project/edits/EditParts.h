#pragma once

#include "project/edits/EditPart.h"

/// About what a point takes in memory, with its texts.
template <class Points>
constexpr std::size_t kPointBytes = sizeof(typename Points::Point) + 64;

template <class Points>
constexpr EditScope kScopeOf = std::is_same_v<Points, DesignPoints> ? kDesignScope : kSurveyScope;

/// What the checks write on a point belongs to the present state in both.
void keepVerdict(const SurveyPoint& from, SurveyPoint& to);
void keepVerdict(const DesignPoint& from, DesignPoint& to);

/// Points by their names: those that are not among `other` are not there in the other state.
template <class Points>
class SomePoints final : public EditPart
{
public:
    /// \param isCorrection  a point keeps the verdict of the last check, since it was measured once
    SomePoints(PointNames names, Points other, bool isCorrection = false)
        : m_names(std::move(names)), m_other(std::move(other)), m_isCorrection(isCorrection)
    {
    }

    void exchange(const EditedData& data) override
    {
        Points& points = data.points<Points>();
        Points present = points.extract(m_names);
        if (m_isCorrection)
            keepVerdicts(present);
        try {
            points.exchange(m_other); // nothing is replaced
        } catch (...) {
            points.exchange(present); // into the room that it has left
            throw;
        }
        m_other = std::move(present);
    }
    void tell(const EditedData& /*data*/, IEditReader& reader) const override
    {
        reader.pointsChanged(m_names, m_other);
    }
    [[nodiscard]] unsigned scope() const override { return kScopeOf<Points>; }
    [[nodiscard]] std::size_t bytes() const override
    {
        return m_names.count() * 48 + m_other.pointCount() * kPointBytes<Points>;
    }

private:
    void keepVerdicts(const Points& present)
    {
        for (auto& [number, line] : m_other) {
            for (auto& point : line) {
                if (const auto* const same = present.find(number, point.pointNumber))
                    keepVerdict(*same, point);
            }
        }
    }

    PointNames m_names;
    Points m_other;
    bool m_isCorrection;
};

/// All points of a kind.
template <class Points>
class AllPoints final : public EditPart
{
public:
    explicit AllPoints(Points other) : m_other(std::move(other)) {}

    void exchange(const EditedData& data) override { std::swap(data.points<Points>(), m_other); }
    void tell(const EditedData& /*data*/, IEditReader& reader) const override
    {
        reader.allChanged(m_other);
    }
    [[nodiscard]] unsigned scope() const override { return kScopeOf<Points>; }
    [[nodiscard]] std::size_t bytes() const override
    {
        return m_other.pointCount() * kPointBytes<Points>;
    }

private:
    Points m_other;
};

/// The parameters of one scope.
class Parameters final : public EditPart
{
public:
    Parameters(EditScope which, basalt::Dictionary other)
        : m_which(which), m_other(std::move(other))
    {
    }

    void exchange(const EditedData& data) override;
    void tell(const EditedData& data, IEditReader& reader) const override;
    [[nodiscard]] unsigned scope() const override { return m_which; }
    [[nodiscard]] std::size_t bytes() const override { return 4096; }

private:
    [[nodiscard]] const IDictionary& present(const EditedData& data) const;

    EditScope m_which;
    basalt::Dictionary m_other;
};
