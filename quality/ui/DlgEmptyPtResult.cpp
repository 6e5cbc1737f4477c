#include "quality/ui/DlgEmptyPtResult.h"

#include "quality/CheckKinds.h"

DlgEmptyPtResult::DlgEmptyPtResult(IDesktopHost& host, CheckResult result)
    : ResultList(host, kEmptyPointCheck, std::move(result),
                 {tr("Empty Point Check Result"), QSize(850, 450), Points::Design})
{
}
