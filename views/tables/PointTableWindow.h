#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/events/IEventManager.h"
#include "model/PointName.h"
#include "project/IPointList.h"
#include "protocol/Outcome.h"

#include <QWidget>

#include <memory>
#include <vector>

class CustomTableWidget;
class FilterHeader;
class IDesktopHost;
class PointTableModel;
class QLabel;
class QMenu;
class QModelIndex;
class TableCountLine;

/// What the tables of design points and survey results have in common: a table with a filter row,
/// its counts below, and what clicks, keys and menu do.
///
/// One point at most is the selected one: the last that was clicked, or selected from elsewhere.
/// It stays so while a filter hides its row.
class PointTableWindow : public QWidget, public IWindowx, public IPointList, public IEventHandler
{
    Q_OBJECT

public:
    ~PointTableWindow() override;

    [[nodiscard]] QWidget* widget() override { return this; }
    [[nodiscard]] IDictionary& parameters() override { return m_parameters; }

    bool selectPoint(const QString& lineNumber, const QString& pointNumber) override;
    bool followPoint(const QString& lineNumber, const QString& pointNumber) override;
    void deselect() override;
    void showOnly(const QString& what, std::vector<PointName> points) override;
    [[nodiscard]] bool isShowingOnly() const override { return !m_only.isEmpty(); }
    void showOthersAgain() override;

protected:
    /// \param selectedEvent announces a selected point
    PointTableWindow(const char* config, IDesktopHost& host, std::unique_ptr<PointTableModel> model,
                     const char* selectedEvent);

    // What is shown. Order, filter, and where they can the selection and the place of the rows
    // stay.

    void showLine(const QString& lineNumber);
    void showAllLines();
    void showNothing();
    void refresh();
    /// To be called when values of results have changed.
    void followResults();
    /// To be called when a project may have been opened or closed.
    void followProject();

    [[nodiscard]] CustomTableWidget& table() const { return *m_table; }
    [[nodiscard]] PointTableModel& model() const { return *m_model; }
    /// Those with a selected cell, in the order of their rows.
    [[nodiscard]] std::vector<PointName> selectedPoints() const;

    // Entries of the menu that both tables have.

    void addExportEntry(QMenu& menu);
    void addCopyEntry(QMenu& menu);

    // What the two tables do each in its way.

    [[nodiscard]] virtual bool isInProject(const PointName& point) const = 0;
    virtual void zoomTo(const PointName& point) = 0;
    /// Adds the entries above the separator.
    virtual void addEntries(QMenu& menu) = 0;
    [[nodiscard]] virtual QString exportTitle() const = 0;
    [[nodiscard]] virtual Outcome exportPoints(const std::vector<PointName>& points,
                                               const QString& path) = 0;
    /// What a table without points says, while a project is open; may have a link.
    [[nodiscard]] virtual QString emptyText() const = 0;
    /// The answer to that link.
    virtual void showSomething() = 0;
    /// Other lines are shown than before.
    virtual void linesChanged() {}

    IDesktopHost& m_host; // outlives the window

private:
    void makeLayout();
    void connectParts();
    void announceRow();
    void announce(const PointName& point);
    void publishPoint(const char* event, const PointName& point);
    [[nodiscard]] bool goTo(const PointName& point);
    void reselect();
    void sort(int column, Qt::SortOrder order);
    void setFilter(int column, const QString& text);
    void clearFilters();
    void showMenu(const QModelIndex& cell, const QPoint& place);
    void zoomToRow(int row);
    void copyRows();
    void exportRows();
    void followLink();
    void followColors();
    void showState();
    void showCounts();
    [[nodiscard]] QString noteText() const;

    basalt::Dictionary m_parameters;
    const char* m_selectedEvent;
    std::unique_ptr<PointTableModel> m_model; // the table, a child of this, goes before it
    CustomTableWidget* m_table;
    FilterHeader* m_header;
    TableCountLine* m_counts;
    QLabel* m_empty; ///< over the rows that are not there
    PointName m_selected;
    QString m_only;       ///< what is shown alone; empty for nothing
    QString m_lineBefore; ///< the one that was shown before that
    std::string m_colors; ///< see `resultMarksState`, when the rows were last read
    bool m_isAnnouncing = false;
};
