#pragma once

#include <QObject>
#include <QStringList>

class CustomTableWidget;
class IDesktopHost;
class PointTableModel;
class QMenu;
struct ColumnChoice;

/// Gives the survey table the columns that the user chose, in his order, and lets him choose them
/// by the header: a drag moves a column, a right click hides it or shows another one. What he
/// chooses is saved with the settings and announced at once.
class SurveyHeaderMenu final : public QObject
{
    Q_OBJECT

public:
    /// All three outlive the menu.
    SurveyHeaderMenu(IDesktopHost& host, CustomTableWidget& table, const PointTableModel& model);

    /// Shows the columns as the settings have them now.
    void apply();

private:
    void showMenu(int column, const QPoint& place);
    void addColumns(QMenu& menu, const QStringList& hidden);
    void setHidden(int column, bool isHidden);
    void storeOrder();
    void store(const ColumnChoice& choice);

    IDesktopHost& m_host;
    CustomTableWidget& m_table;
    const PointTableModel& m_model;
    bool m_isApplying = false;
};
