#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "project/ui/ClosesWithProject.h"

#include <memory>

class CustomTableWidget;
class IDesktopHost;
class QAbstractTableModel;
class QModelIndex;

/// The result of a check, a row each: see quality/ResultModel.h. A click on a row, or going there
/// by key, selects its point, which the other windows follow; a double click zooms the map to it. A
/// menu copies rows and saves them as CSV.
///
/// The rows are those of one run; the next run makes a new list. The list deletes itself when it is
/// closed, and closes when its project is closed.
class ResultList : public Dialog
{
    Q_OBJECT

protected:
    enum class Points
    {
        Survey,
        Design
    };
    struct Setup
    {
        QString title;
        QSize smallest; ///< logical pixels
        Points points = Points::Survey;
    };

    ResultList(IDesktopHost& host, std::unique_ptr<QAbstractTableModel> result, const Setup& setup);

    [[nodiscard]] CustomTableWidget& table() { return *m_table; }

    IDesktopHost& m_host; // outlives the dialog

private:
    void addMenu();
    void selectPoint(const QModelIndex& index);
    /// Does nothing when the point was deleted after the check.
    void zoomToPoint(const QModelIndex& index);
    void copyRows();
    void saveRows();

    CustomTableWidget* m_table;
    Points m_points;
    ClosesWithProject m_closing;
};
