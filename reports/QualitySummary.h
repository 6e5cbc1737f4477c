#pragma once

class Page;
struct QualityFindings;
struct ReportInput;

/// Writes the page of the quality check: what was judged, what failed by test, and the worst lines.
void writeQualitySummary(Page& page, const ReportInput& input, const QualityFindings& findings);
