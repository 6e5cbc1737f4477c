#pragma once

#include "quality/ui/ResultList.h"

/// The repeated measurements, each below what it repeats. Its menu deletes results from the
/// project, without a question; the files keep them until the project is saved.
class DlgRepeatPtCheck final : public ResultList
{
    Q_OBJECT

public:
    DlgRepeatPtCheck(IDesktopHost& host, CheckResult result);

private:
    /// Deletes the results of the selected rows and lists anew what is left.
    void deleteSelected();
};
