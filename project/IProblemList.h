#pragma once

struct PointName;

/// The window "Problems List".
class IProblemList
{
public:
    virtual ~IProblemList() = default;

    /// Selects a problem of the point, if the list shows one, without announcing it.
    /// \param isDesign  the point is one of the design, otherwise a result
    /// \returns whether the list is in front and stays there
    virtual bool followPoint(bool isDesign, const PointName& point) = 0;
};
