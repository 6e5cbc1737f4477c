#pragma once

#include "quality/ui/ResultList.h"

/// The faults that a quality check found.
class DlgQCResult final : public ResultList
{
    Q_OBJECT

public:
    DlgQCResult(IDesktopHost& host, CheckResult result);
};
