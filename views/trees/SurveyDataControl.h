#pragma once

#include "views/trees/LineTree.h"

/// The window "Survey Lines": the lines of the survey results.
class SurveyDataControl final : public LineTree
{
    Q_OBJECT

public:
    SurveyDataControl(const char* config, IDesktopHost* host);

protected:
    void rebuild() override;
    void announce(const LineItem& item) override;
    void fillMenu(QMenu& menu, const LineItem& first) override;
    void deleteSelection() override;

private:
    LineItem& makeRoot(); ///< without a line
    void addLines(LineItem& root);
};
