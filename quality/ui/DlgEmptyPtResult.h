#pragma once

#include "quality/ui/ResultList.h"

/// The design points that are not surveyed.
class DlgEmptyPtResult final : public ResultList
{
    Q_OBJECT

public:
    DlgEmptyPtResult(IDesktopHost& host, CheckResult result);
};
