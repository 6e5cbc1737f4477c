#pragma once

#include "model/PointNames.h"
#include "project/edits/EditedData.h"

/// Is told what an edit has changed, by what it holds.
class IEditReader
{
public:
    virtual ~IEditReader() = default;

    /// Points that have come, gone or changed. \param before  those of them that were there, as
    /// they were
    virtual void pointsChanged(const PointNames& names, const DesignPoints& before) = 0;
    virtual void pointsChanged(const PointNames& names, const SurveyPoints& before) = 0;
    /// All points were replaced.
    virtual void allChanged(const DesignPoints& before) = 0;
    virtual void allChanged(const SurveyPoints& before) = 0;
    virtual void parametersChanged(EditScope which, const IDictionary& before,
                                   const IDictionary& after) = 0;
    /// \param before  those of these problems that were accepted
    virtual void acceptancesChanged(const std::vector<Acceptance>& problems,
                                    const Acceptances& before) = 0;
};

/// A part of an edit: it holds the other state of what it touches.
class EditPart
{
public:
    virtual ~EditPart() = default;

    /// Takes the memory that `exchange` needs. An exception (none is left) changes nothing.
    virtual void prepare(const EditedData& /*data*/) {}
    /// Exchanges the project's state with the one that the part holds, right after `prepare`.
    virtual void exchange(const EditedData& data) = 0;
    /// Once it is done: what has changed.
    virtual void tell(const EditedData& data, IEditReader& reader) const = 0;
    [[nodiscard]] virtual unsigned scope() const = 0;
    /// About how much memory it takes.
    [[nodiscard]] virtual std::size_t bytes() const = 0;
};
