#pragma once

#include "views/trees/LineTree.h"

#include <string>

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
    /// What the user looks at in one project.
    struct Place
    {
        std::string project; ///< its folder
        QStringList selected;
        QString current; ///< the number of the current line; empty for the root
        bool showsAll;   ///< in the table, which says so
        int scrolled;
    };

    [[nodiscard]] Place place() const;
    void goBackTo(const Place& place);
    LineItem& makeRoot(); ///< without a line
    void addLines(LineItem& root);

    std::string m_project; ///< the folder of the project whose lines the tree has
};
