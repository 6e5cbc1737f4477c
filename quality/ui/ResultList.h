#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "model/PointName.h"
#include "project/ui/ClosesWithProject.h"
#include "quality/CheckKinds.h"

#include <memory>

class CustomTableWidget;
class IDesktopHost;
class QLabel;
class QMenu;
class QModelIndex;
class QVBoxLayout;

/// The result of a check, a row each (see quality/ResultModel.h), and below it what was found in a
/// sentence. A click on a row, or going there by key, selects its point, which the other windows
/// follow; a double click zooms the map to it. A menu copies rows and saves them as CSV.
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

    ResultList(IDesktopHost& host, const CheckKind& kind, CheckResult result, const Setup& setup);

    /// Shows another result in place of the present one, at the place where the list was.
    void setResult(CheckResult result);

    /// What the row of a cell is about.
    [[nodiscard]] static PointName nameOf(const QModelIndex& index);

    [[nodiscard]] CustomTableWidget& table() { return *m_table; }
    /// Opens on a right click; what a list adds stands above *Copy*.
    [[nodiscard]] QMenu& menu() { return *m_menu; }
    /// Holds the table and, below it, what was found.
    [[nodiscard]] QVBoxLayout& mainLayout() { return *m_layout; }

    IDesktopHost& m_host; // outlives the dialog

private:
    void addMenu();
    /// Those of the frame, which do not reach a window of its own.
    void addUndoKeys();
    /// Makes the list as wide as its columns, and these as wide as a list of the smallest size.
    void fitWidth();
    void showRows(CheckResult result);
    /// A point that was deleted after the check is told in the status bar.
    void selectPoint(const QModelIndex& index);
    /// Does nothing when the point was deleted after the check.
    void zoomToPoint(const QModelIndex& index);
    void copyRows();
    void saveRows();

    const CheckKind& m_kind;
    CustomTableWidget* m_table;
    QLabel* m_finding;
    QMenu* m_menu;
    QVBoxLayout* m_layout;
    std::unique_ptr<QAbstractTableModel> m_rows; ///< the table shows a copy with colours
    Points m_points;
    ClosesWithProject m_closing;
};
