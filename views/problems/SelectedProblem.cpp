#include "views/problems/SelectedProblem.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/GroupedNumber.h"
#include "views/problems/ProblemTableModel.h"
#include "views/problems/ShowProblem.h"

#include <QItemSelectionModel>
#include <QScopedValueRollback>

#include <algorithm>

void SelectedProblem::step(bool isForward)
{
    const int rows = m_model.rowCount();
    const int present = m_table.currentIndex().row();
    const bool isThere = m_table.selectedRowCount() > 0;
    const int row = !isThere ? std::max(present, 0) : present + (isForward ? 1 : -1);
    if (rows == 0)
        m_host.tell(m_model.unfilteredCount() > 0 ? tr("No problem passes the filters.")
                                                  : tr("There is no problem in the list."));
    else if (row < 0)
        m_host.tell(tr("This is the first of %1 problems.").arg(lum::groupedNumber(rows)));
    else if (row >= rows)
        m_host.tell(tr("This was the last of %1 problems.").arg(lum::groupedNumber(rows)));
    else {
        m_table.showRow(row);
        announce(row);
    }
}

void SelectedProblem::announce(int row)
{
    const Problem& problem = m_model.problem(row);
    const QString name = problemName(problem);
    const QScopedValueRollback<bool> guard(m_isAnnouncing, true);
    const bool isThere = selectProblem(m_host, problem);
    if (!isThere && problem.point.empty())
        return m_host.tell(tr("No point that this problem is about is in the project any more."));
    if (!isThere)
        return m_host.tell(tr("Point %1 is not in the project any more.").arg(name));
    const QString number = lum::groupedNumber(row + 1);
    const QString rows = lum::groupedNumber(m_model.rowCount());
    const QString what = problem.kind->what(problem);
    m_host.tell(name.isEmpty() ? tr("Problem %1 of %2: %3").arg(number, rows, what)
                               : tr("Problem %1 of %2, %3: %4").arg(number, rows, name, what));
}

bool SelectedProblem::follow(bool isDesign, const PointName& point)
{
    if (m_isAnnouncing)
        return true;
    const std::vector<int> selected = m_table.selectedRows();
    const auto isAbout = [&](const Problem& problem) {
        return problem.isDesign == isDesign && problem.point == point.point &&
               problem.line == point.line;
    };
    if (!selected.empty() && isAbout(m_model.problem(selected.front())))
        return true; // another fault of the same point stays
    const int row = m_model.rowOf(isDesign, point.line, point.point);
    if (row >= 0)
        m_table.showRow(row);
    else
        m_table.clearSelection();
    return row >= 0;
}

void SelectedProblem::goOnAt(int row)
{
    constexpr int kWhat = static_cast<int>(ProblemField::What);
    const int last = std::max(m_model.rowCount() - 1, 0);
    m_table.selectionModel()->setCurrentIndex(m_model.index(std::clamp(row, 0, last), kWhat),
                                              QItemSelectionModel::NoUpdate);
}

void SelectedProblem::keepInView()
{
    if (m_table.selectedRowCount() != 1)
        return;
    const QModelIndex row = m_table.currentIndex();
    static_cast<void>(m_table.visualRect(row)); // lays the rows out, else it cannot scroll there
    m_table.showRow(row.row());
}
