#pragma once

#include "quality/ui/ResultList.h"

/// The repeated measurements, each below what it repeats. Its menu deletes results from the
/// project, without a question; the files keep them until the project is saved. It also leads to
/// the list in which one result of several is chosen.
class DlgRepeatPtCheck final : public ResultList
{
    Q_OBJECT

public:
    DlgRepeatPtCheck(IDesktopHost& host, CheckResult result);

private:
    /// Deletes the results of the selected rows and lists anew what is left.
    void deleteSelected();
    /// Opens the list in which repeats are resolved, with the selected points.
    void resolveSelected();
    [[nodiscard]] std::vector<PointName> selectedNames();
};
