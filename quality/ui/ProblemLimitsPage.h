#pragma once

#include <QWidget>

class IDictionary;
class PropertyGridCtrl;

/// The limits of the problems (quality/problems/ProblemLimits.h) in rows: a page of the dialog of
/// the limits.
class ProblemLimitsPage final : public QWidget
{
    Q_OBJECT

public:
    ProblemLimitsPage(const IDictionary& parameters, QWidget* parent);

    [[nodiscard]] bool hasFaults();
    void goToFault();
    /// Copies the limits that have been entered into `parameters`.
    void store(IDictionary& parameters);

private:
    PropertyGridCtrl* m_grid;
};
