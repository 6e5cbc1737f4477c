#pragma once

#include "model/PointName.h"

#include <vector>

class QString;

/// A window that lists points: "Survey Data List" the results, "Design Data List" the design.
class IPointList
{
public:
    virtual ~IPointList() = default;

    /// Shows this point, selects its row and announces it, as a click on the row does. A list of
    /// another line goes over to the point's line.
    /// \returns false when the project does not have the point
    virtual bool selectPoint(const QString& lineNumber, const QString& pointNumber) = 0;

    /// The same without announcing it: the answer to a selection that was made elsewhere.
    virtual bool followPoint(const QString& lineNumber, const QString& pointNumber) = 0;

    /// Selects no row: what was selected elsewhere is no point of this list.
    virtual void deselect() = 0;

    /// Shows these points alone, of all lines, besides the filters that there are; the user can
    /// take that back there. \param what   they are: "Rover 5432" \param points ascending by line
    /// and number
    virtual void showOnly(const QString& what, std::vector<PointName> points) = 0;

    /// Whether it does; the user may have taken it back.
    [[nodiscard]] virtual bool isShowingOnly() const = 0;
    /// Takes `showOnly` back.
    virtual void showOthersAgain() = 0;
};
