#pragma once

#include "quality/ui/ResultList.h"

/// The resurveys that differ too much from the first result, or have none.
class DlgResurveyCheckResult final : public ResultList
{
    Q_OBJECT

public:
    DlgResurveyCheckResult(IDesktopHost& host, CheckResult result);
};
