#pragma once

#include "model/TakenOver.h"
#include "project/edits/EditPart.h"

/// What the checks have written on a point goes over to its other state.
void keepVerdict(const SurveyPoint& from, SurveyPoint& to);
void keepVerdict(const DesignPoint& from, DesignPoint& to);

template <class Points>
constexpr EditScope kScopeOf = std::is_same_v<Points, DesignPoints> ? kDesignScope : kSurveyScope;

// About how much memory names and points take, with the texts and the lines.
inline std::size_t bytesOf(const PointNames& names)
{
    return names.lines().size() * 192 + names.count() * 48;
}
template <class Points>
std::size_t bytesOf(const Points& points)
{
    return points.lineCount() * 256 + points.pointCount() * (sizeof(typename Points::Point) + 64);
}

/// Points by their names: those that are not among `other` are not there in the other state.
template <class Points>
class SomePoints final : public EditPart
{
public:
    SomePoints(PointNames names, Points other)
        : m_names(std::move(names)), m_other(std::move(other))
    {
    }

    void prepare(const EditedData& data) override
    {
        m_prepared = data.points<Points>().prepareExchange(m_names, m_other);
    }
    void exchange(const EditedData& data) override
    {
        data.points<Points>().exchange(std::move(m_prepared), m_other);
        m_prepared = {};
    }
    void tell(const EditedData& /*data*/, IEditReader& reader) const override
    {
        reader.pointsChanged(m_names, m_other);
    }
    [[nodiscard]] unsigned scope() const override { return kScopeOf<Points>; }
    [[nodiscard]] std::size_t bytes() const override { return bytesOf(m_names) + bytesOf(m_other); }

private:
    PointNames m_names;
    Points m_other;
    typename Points::Exchange m_prepared;
};

/// A point that was corrected. It may have got another name, and have replaced the point that had
/// it. What the checks have written on it belongs to it in both states, since it was measured once.
template <class Points>
class CorrectedPoint final : public EditPart
{
public:
    /// \param corrected  the point alone, under its name `after`
    CorrectedPoint(const PointName& before, const PointName& after, Points corrected)
        : m_here(before), m_there(after), m_names(std::vector<PointName>{before, after}),
          m_other(std::move(corrected))
    {
    }

    void prepare(const EditedData& data) override
    {
        Points& points = data.points<Points>();
        keepVerdict(*points.find(m_here.line, m_here.point), otherPoint());
        if (m_here != m_there)
            m_prepared = points.prepareExchange(m_names, m_other);
    }
    void exchange(const EditedData& data) override
    {
        Points& points = data.points<Points>();
        if (m_here == m_there) // pointers to points stay valid
            std::swap(*points.find(m_here.line, m_here.point), otherPoint());
        else
            points.exchange(std::move(m_prepared), m_other);
        m_prepared = {};
        std::swap(m_here, m_there);
    }
    void tell(const EditedData& /*data*/, IEditReader& reader) const override
    {
        reader.pointsChanged(m_names, m_other);
    }
    [[nodiscard]] unsigned scope() const override { return kScopeOf<Points>; }
    [[nodiscard]] std::size_t bytes() const override
    {
        return 2 * bytesOf(m_names) + bytesOf(m_other);
    }

private:
    [[nodiscard]] typename Points::Point& otherPoint()
    {
        return *m_other.find(m_there.line, m_there.point);
    }

    PointName m_here;  ///< in the project
    PointName m_there; ///< in the other state
    PointNames m_names;
    Points m_other;
    typename Points::Exchange m_prepared;
};

/// Points that came by an import.
template <class Points>
class ImportedPoints final : public EditPart
{
public:
    /// For the import to fill.
    [[nodiscard]] TakenOver<Points>& undo() { return m_undo; }

    void prepare(const EditedData& data) override
    {
        if (!m_undo.wasEmpty)
            m_prepared = data.points<Points>().prepareExchange(m_undo.names, m_undo.replaced);
    }
    void exchange(const EditedData& data) override
    {
        if (m_undo.wasEmpty)
            std::swap(data.points<Points>(), m_undo.replaced);
        else
            data.points<Points>().exchange(std::move(m_prepared), m_undo.replaced);
        m_prepared = {};
    }
    void tell(const EditedData& /*data*/, IEditReader& reader) const override
    {
        if (m_undo.wasEmpty)
            reader.allChanged(m_undo.replaced);
        else
            reader.pointsChanged(m_undo.names, m_undo.replaced);
    }
    [[nodiscard]] unsigned scope() const override { return kScopeOf<Points>; }
    [[nodiscard]] std::size_t bytes() const override
    {
        return bytesOf(m_undo.names) + bytesOf(m_undo.replaced);
    }

private:
    TakenOver<Points> m_undo;
    typename Points::Exchange m_prepared;
};

/// All points of a kind.
template <class Points>
class AllPoints final : public EditPart
{
public:
    explicit AllPoints(Points other = {}) : m_other(std::move(other)) {}

    /// The points in the other state.
    [[nodiscard]] Points& other() { return m_other; }

    void exchange(const EditedData& data) override { std::swap(data.points<Points>(), m_other); }
    void tell(const EditedData& /*data*/, IEditReader& reader) const override
    {
        reader.allChanged(m_other);
    }
    [[nodiscard]] unsigned scope() const override { return kScopeOf<Points>; }
    [[nodiscard]] std::size_t bytes() const override { return bytesOf(m_other); }

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

/// Problems that are accepted, or not any more.
class AcceptedProblems final : public EditPart
{
public:
    /// \param other  those of these problems that are accepted in the other state
    AcceptedProblems(const std::vector<Acceptance>& problems, Acceptances other);

    [[nodiscard]] std::size_t problems() const { return m_problems.size(); }

    void exchange(const EditedData& data) override
    {
        data.acceptances.exchange(m_problems, m_other);
    }
    void tell(const EditedData& /*data*/, IEditReader& reader) const override
    {
        reader.acceptancesChanged(m_problems, m_other);
    }
    [[nodiscard]] unsigned scope() const override { return kAcceptanceScope; }
    [[nodiscard]] std::size_t bytes() const override
    {
        return (m_problems.size() + m_other.size()) * (sizeof(Acceptance) + 64);
    }

private:
    std::vector<Acceptance> m_problems; ///< each once, without reason, person and time
    Acceptances m_other;
};
