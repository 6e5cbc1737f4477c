#pragma once

#include <QObject>

#include <vector>

class CustomTableWidget;
class IDesktopHost;
class ProblemTableModel;
class QAction;
class QBoxLayout;
class QMenu;
struct Acceptance;
struct Problem;

/// What can be done with the problems of the list: its buttons and the entries of its menu. Each is
/// enabled while it has something to do.
class ProblemActions final : public QObject
{
    Q_OBJECT

public:
    /// \param table shows `model`
    ProblemActions(IDesktopHost& host, ProblemTableModel& model, CustomTableWidget& table);

    void addButtons(QBoxLayout& bar, QWidget* parent) const;
    void addEntries(QMenu& menu) const;
    /// To be called when other problems are shown or selected.
    /// \param isOld  they may not be those of the present points
    void follow(bool isOld);

    /// Who has accepted a problem, when and why, translated; empty when nobody has.
    [[nodiscard]] static QString acceptanceText(const Problem& problem);

Q_SIGNALS:
    /// Points were changed by a proposal: the list is old.
    void pointsChanged();
    /// Other problems are accepted than before.
    void acceptedChanged();

private:
    using Problems = std::vector<const Problem*>;

    QAction* add(const char* name, const QString& text, const char* icon, const QString& tip,
                 void (ProblemActions::*run)());
    [[nodiscard]] Problems selected() const;
    [[nodiscard]] Problems shownForCrew() const;
    [[nodiscard]] std::vector<Acceptance> acceptancesOf(const Problems& problems) const;

    void accept();
    void openAgain();
    void carryOut();
    void resolveRepeats();
    void measureAgain();
    void listForCrew();
    void writeCrewList(Problems (ProblemActions::*which)() const);
    void save();

    IDesktopHost& m_host; // outlives the window
    ProblemTableModel& m_model;
    CustomTableWidget& m_table;
    QAction* m_accept;
    QAction* m_openAgain;
    QAction* m_carryOut;
    QAction* m_resolveRepeats;
    QAction* m_measureAgain;
    QAction* m_listForCrew;
    QAction* m_save;
};
