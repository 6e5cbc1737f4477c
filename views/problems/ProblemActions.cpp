#include "views/problems/ProblemActions.h"

#include "basalt_utilities/ILogger.h"
#include "exchange/ShownTimes.h"
#include "exchange/ui/FileExports.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "model/PointNames.h"
#include "model/PointNumber.h"
#include "project/DataProcessDataManager.h"
#include "project/OwnFile.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "quality/problems/ForCrew.h"
#include "quality/problems/NameProblems.h"
#include "quality/problems/ProblemCsv.h"
#include "quality/problems/ProblemFinders.h"
#include "quality/ui/DlgRepeatChoice.h"
#include "views/problems/DlgAcceptProblems.h"
#include "views/problems/ProblemTableModel.h"

#include <QAction>
#include <QBoxLayout>
#include <QGuiApplication>
#include <QMenu>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <utility>

namespace {

DataProcessDataManager& manager()
{
    return DataProcessDataManager::instance();
}

/// The reasons of the project, the latest first.
QStringList knownReasons()
{
    std::vector<const Acceptance*> all;
    for (const Acceptance& acceptance : manager().acceptances())
        all.push_back(&acceptance);
    std::ranges::sort(all, std::ranges::greater(), &Acceptance::time);
    QStringList reasons;
    for (const Acceptance* const acceptance : all)
        reasons << acceptance->reason;
    reasons.removeDuplicates();
    return reasons;
}

/// "1001/10015001"
QString shownName(const PointName& name)
{
    return lum::toQString(name.line) + QLatin1Char('/') +
           lum::toQString(writtenPointNumber(name.point));
}

/// Whether two measurements of one point differ, or there are simply two.
bool isOfRepeats(const Problem& problem)
{
    static const std::array kKinds{findProblemKind("repeat"), findProblemKind("repeat_off"),
                                   findProblemKind("resurvey_off")};
    return std::ranges::find(kKinds, problem.kind) != kKinds.end();
}

/// The user waits while it lives.
class Waiting
{
public:
    Waiting() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Waiting() { QGuiApplication::restoreOverrideCursor(); }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;
};

} // namespace

ProblemActions::ProblemActions(IDesktopHost& host, ProblemTableModel& model,
                               CustomTableWidget& table)
    : m_host(host), m_model(model), m_table(table),
      m_accept(add("accept", tr("&Accept..."), "dialog-ok-apply",
                   tr("Say why the selected problems may be so; they leave the list"),
                   &ProblemActions::accept)),
      m_openAgain(add("openAgain", tr("Open A&gain"), "edit-undo",
                      tr("Put the selected problems back into the list of the open ones"),
                      &ProblemActions::openAgain)),
      m_carryOut(add("carryOut", tr("Ca&rry Out Proposal"), "edit-rename",
                     tr("Give the selected results the names that are proposed; it can be undone"),
                     &ProblemActions::carryOut)),
      m_resolveRepeats(add("resolveRepeats", tr("Resol&ve Repeats..."), nullptr,
                           tr("Choose which measurement of the selected points stays"),
                           &ProblemActions::resolveRepeats)),
      m_measureAgain(add("measureAgain", tr("Measure Agai&n..."), "flag",
                         tr("Write the design points of the selected problems for the crew"),
                         &ProblemActions::measureAgain)),
      m_listForCrew(add("listForCrew", tr("&List for the Crew..."), "flag",
                        tr("Write the points of all errors and warnings that are shown as CSV or "
                           "KML: what is not surveyed, and what must be measured again"),
                        &ProblemActions::listForCrew)),
      m_save(add("save", tr("&Save as CSV..."), "document-export",
                 tr("Write the rows that are shown; numbers stand without their units"),
                 &ProblemActions::save))
{
}

QAction* ProblemActions::add(const char* name, const QString& text, const char* icon,
                             const QString& tip, void (ProblemActions::*run)())
{
    auto* const action = new QAction(QIcon::fromTheme(QLatin1String(icon)), text, this);
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, [this, run] {
        if (ProjectState::hasData())
            (this->*run)();
    });
    return action;
}

void ProblemActions::addButtons(QBoxLayout& bar, QWidget* parent) const
{
    for (QAction* const action : {m_accept, m_openAgain, m_carryOut, m_listForCrew}) {
        auto* const button = new QToolButton(parent);
        button->setText(action->text()); // its own, so that Alt and a letter press it
        button->setIcon(action->icon());
        button->setToolTip(action->toolTip());
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
        connect(button, &QToolButton::clicked, action, &QAction::trigger);
        connect(action, &QAction::changed, button, [action, button] {
            button->setVisible(action->isVisible());
            button->setEnabled(action->isEnabled());
        });
        bar.addWidget(button);
    }
}

void ProblemActions::addEntries(QMenu& menu) const
{
    menu.addActions({m_accept, m_openAgain, m_carryOut, m_resolveRepeats, m_measureAgain});
    menu.addSeparator();
    QAction* const copy =
        menu.addAction(tr("&Copy"), &m_table, [table = &m_table] { table->copySelection(); });
    copy->setShortcut(QKeySequence::Copy);
    QAction* const withCaptions =
        menu.addAction(tr("Copy with H&eaders"), &m_table, [table = &m_table] {
            table->copySelection(CustomTableWidget::Captions::With);
        });
    withCaptions->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    menu.addAction(m_save);
}

void ProblemActions::follow(bool isOld)
{
    const Problems chosen = selected();
    const bool hasChosen = !chosen.empty();
    const bool isAccepted = m_model.choice().isAccepted;
    const auto has = [&](auto judge) {
        return std::ranges::any_of(chosen, [&](const Problem* problem) { return judge(*problem); });
    };
    m_accept->setVisible(!isAccepted);
    m_openAgain->setVisible(isAccepted);
    m_accept->setEnabled(hasChosen && !isOld); // what one accepts must be what one sees
    m_openAgain->setEnabled(hasChosen && !isOld);
    m_carryOut->setEnabled(
        !isOld && has([](const Problem& problem) { return !proposalOf(problem).empty(); }));
    m_resolveRepeats->setEnabled(has(isOfRepeats));
    m_measureAgain->setEnabled(!isOld &&
                               has([](const Problem& problem) { return !problem.point.empty(); }));
    m_listForCrew->setVisible(!isAccepted); // what may be so sends nobody out
    m_listForCrew->setEnabled(m_model.rowCount() > 0 && !isOld);
    m_save->setEnabled(m_model.rowCount() > 0);
}

ProblemActions::Problems ProblemActions::selected() const
{
    Problems problems;
    for (const int row : m_table.selectedRows())
        problems.push_back(&m_model.problem(row));
    return problems;
}

// --- what is accepted ---

std::vector<Acceptance> ProblemActions::acceptancesOf(const Problems& problems) const
{
    const Waiting waiting;
    std::vector<Acceptance> acceptances;
    for (const Problem* const problem : problems) {
        if (auto acceptance =
                acceptanceOf(*problem, manager().designPoints(), manager().surveyPoints()))
            acceptances.push_back(std::move(*acceptance));
    }
    return acceptances;
}

QString ProblemActions::acceptanceText(const Problem& problem)
{
    if (!problem.isAccepted || !ProjectState::hasData())
        return {};
    const auto wanted = acceptanceOf(problem, manager().designPoints(), manager().surveyPoints());
    const Acceptance* const found = wanted ? manager().acceptances().find(*wanted) : nullptr;
    if (found == nullptr)
        return {};
    return tr("Accepted by %1 on %2: %3")
        .arg(found->person, found->time.toLocalTime().toString(QStringLiteral("yyyy/MM/dd")),
             found->reason);
}

void ProblemActions::accept()
{
    const Problems chosen = selected();
    std::vector<Acceptance> acceptances = acceptancesOf(chosen);
    if (acceptances.empty())
        return;
    DlgAcceptProblems dialog(m_host.dialogParent(), chosen, knownReasons());
    if (dialog.exec() != QDialog::Accepted || !ProjectState::hasData())
        return;
    const Waiting waiting;
    for (Acceptance& acceptance : acceptances)
        acceptance.reason = dialog.reason();
    const std::size_t count = manager().accept(std::move(acceptances));
    Q_EMIT acceptedChanged();
    m_host.tell(tr("Problems accepted: %1").arg(lum::groupedNumber(count)));
}

void ProblemActions::openAgain()
{
    std::size_t count = 0;
    {
        const Waiting waiting;
        count = manager().endAcceptances(acceptancesOf(selected()));
    }
    Q_EMIT acceptedChanged();
    m_host.tell(tr("Problems open again: %1").arg(lum::groupedNumber(count)));
}

// --- what is done about it ---

void ProblemActions::carryOut()
{
    std::vector<Renaming> renamings;
    std::set<std::pair<std::string, std::string>> renamed; // two rows may propose the same
    for (const Problem* const problem : selected()) {
        for (Renaming& renaming : proposalOf(*problem)) {
            if (renamed.emplace(renaming.from.line, renaming.from.point).second)
                renamings.push_back(std::move(renaming));
        }
    }
    if (renamings.empty())
        return;
    const QString text =
        renamings.size() == 1
            ? tr("Result %1 is now %2. Ctrl+Z takes it back.")
                  .arg(shownName(renamings.front().from), shownName(renamings.front().to))
            : tr("Results with new names: %1. Ctrl+Z takes it back.")
                  .arg(lum::groupedNumber(renamings.size()));
    Outcome outcome = Outcome::done();
    {
        const Waiting waiting;
        manager().renameResults(renamings, &outcome);
    }
    if (!outcome.isDone())
        return LumMessageBox::error(m_host.dialogParent(), tr("Carry Out Proposal"),
                                    outcome.text());
    m_host.eventManager().publish(events::kRefreshSurveyLayer, nullptr, 0);
    Q_EMIT pointsChanged();
    m_host.tell(text);
}

void ProblemActions::resolveRepeats()
{
    std::vector<PointName> names;
    for (const Problem* const problem : selected()) {
        if (isOfRepeats(*problem))
            names.push_back(
                {std::string(problem->line.view()), std::string(problem->point.view())});
    }
    DlgRepeatChoice::open(m_host).selectPointsOf(PointNames(names));
}

void ProblemActions::measureAgain()
{
    writeCrewList(&ProblemActions::selected);
}

void ProblemActions::listForCrew()
{
    writeCrewList(&ProblemActions::shownForCrew);
}

ProblemActions::Problems ProblemActions::shownForCrew() const
{
    Problems shown;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        if (isForCrew(m_model.problem(row), manager().designPoints()))
            shown.push_back(&m_model.problem(row));
    }
    return shown;
}

void ProblemActions::writeCrewList(Problems (ProblemActions::*which)() const)
{
    const QString title = tr("Points for the Crew");
    if ((this->*which)().empty()) {
        LumMessageBox::information(m_host.dialogParent(), title,
                                   tr("No error and no warning that is shown has a point."));
        return;
    }
    const QString file = FileDialog::getSaveFileName(
        m_host.dialogParent(), title, QStringLiteral("csv file(*.csv);;Kml file(*.kml)"));
    if (file.isEmpty() || !ProjectState::hasData()) // it may be closed while the user is asked
        return;
    Outcome outcome = Outcome::done();
    {
        const Waiting waiting;
        manager().exportCrewList((this->*which)(), file, &outcome);
    }
    if (!outcome.isDone())
        return LumMessageBox::error(m_host.dialogParent(), title, outcome.text());
    FileExports::offerToOpen(m_host, file, outcome.text());
}

void ProblemActions::save()
{
    const QString title = tr("Save Problems");
    const QString file = FileDialog::getSaveFileName(m_host.dialogParent(), title,
                                                     QStringLiteral("csv file(*.csv)"));
    if (file.isEmpty() || !ProjectState::hasData())
        return;
    Outcome outcome = checkNotOwn(ProjectState::place(), file);
    if (outcome.isDone()) {
        const Waiting waiting;
        Problems shown;
        shown.reserve(static_cast<std::size_t>(m_model.rowCount()));
        for (int row = 0; row < m_model.rowCount(); ++row)
            shown.push_back(&m_model.problem(row));
        outcome = writeProblemCsv(file, shown, ResultCsv::AsShown, shownTimes());
    }
    if (outcome.isDone())
        return FileExports::offerToOpen(m_host, file,
                                        tr("Rows: %1").arg(lum::groupedNumber(m_model.rowCount())));
    basalt::logError(outcome.detail());
    LumMessageBox::error(m_host.dialogParent(), title, outcome.text());
}
