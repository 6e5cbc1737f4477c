#pragma once

#include "model/PointName.h"

#include <QCoreApplication>

class CustomTableWidget;
class IDesktopHost;
class ProblemTableModel;

/// The selected problem of the list: goes from one to the next, shows what it is about in the other
/// windows, and follows what is selected there.
class SelectedProblem
{
    Q_DECLARE_TR_FUNCTIONS(SelectedProblem)

public:
    /// \param table shows `model`
    SelectedProblem(IDesktopHost& host, const ProblemTableModel& model, CustomTableWidget& table)
        : m_host(host), m_model(model), m_table(table)
    {
    }

    /// To the next row, or the one before; says so where there is none.
    void step(bool isForward);
    /// Shows what a row is about in the other windows, and says what is wrong with it.
    void announce(int row);
    /// Selects a problem of a point that was selected elsewhere, or none.
    /// \returns whether the point has one
    bool follow(bool isDesign, const PointName& point);
    /// The keys go on from this row, or the last one; nothing is selected.
    void goOnAt(int row);
    /// Scrolls to it, where other rows are shown around it.
    void keepInView();

private:
    IDesktopHost& m_host;
    const ProblemTableModel& m_model;
    CustomTableWidget& m_table;
    bool m_isAnnouncing = false;
};
