#pragma once

#include <QObject>

class CustomTableWidget;
class IDesktopHost;
class ProblemTableModel;
class QAction;
class QBoxLayout;
class QMenu;

/// What can be done with the problems of the list: its buttons and the entries of its menu.
class ProblemActions final : public QObject
{
    Q_OBJECT

public:
    /// \param table shows `model`
    ProblemActions(IDesktopHost& host, ProblemTableModel& model, CustomTableWidget& table);

    void addButtons(QBoxLayout& bar, QWidget* parent) const;
    void addEntries(QMenu& menu) const;
    /// To be called when other problems are shown or selected.
    void followSelection();

Q_SIGNALS:
    /// Points were changed: the list is old.
    void pointsChanged();
    /// Other problems are accepted than before.
    void acceptedChanged();

private:
    QAction* add(const char* name, const QString& text, const char* icon, const QString& tip,
                 void (ProblemActions::*run)());

    void save();

    IDesktopHost& m_host; // outlives the window
    ProblemTableModel& m_model;
    CustomTableWidget& m_table;
    QAction* m_save;
};
