#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Exports all lines of the design. The entry's "form" is "csv", "db" or "kml"; with "unsurveyed"
/// set to "1" points that were surveyed are left out.
class ExportDesignCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};

/// Exports all survey results. The entry's "form" is "csv" or "kml".
class ExportSurveyCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
