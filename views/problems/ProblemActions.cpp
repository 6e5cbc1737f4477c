#include "views/problems/ProblemActions.h"

#include "basalt_utilities/ILogger.h"
#include "exchange/ui/FileExports.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/GroupedNumber.h"
#include "project/DataProcessDataManager.h"
#include "project/OwnFile.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "quality/ResultCsv.h"
#include "views/problems/ProblemTableModel.h"

#include <QAction>
#include <QBoxLayout>
#include <QGuiApplication>
#include <QMenu>
#include <QToolButton>

ProblemActions::ProblemActions(IDesktopHost& host, ProblemTableModel& model,
                               CustomTableWidget& table)
    : m_host(host), m_model(model), m_table(table),
      m_save(add("save", tr("&Save as CSV..."), "document-export",
                 tr("Write the rows that are shown, as they are shown"), &ProblemActions::save))
{
}

QAction* ProblemActions::add(const char* name, const QString& text, const char* icon,
                             const QString& tip, void (ProblemActions::*run)())
{
    auto* const action = new QAction(QIcon::fromTheme(QLatin1String(icon)), text, this);
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void ProblemActions::addButtons(QBoxLayout& bar, QWidget* parent) const
{
    for (QAction* const action : {m_save}) {
        auto* const button = new QToolButton(parent);
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        bar.addWidget(button);
    }
}

void ProblemActions::addEntries(QMenu& menu) const
{
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

void ProblemActions::followSelection()
{
    m_save->setEnabled(m_model.rowCount() > 0);
}

void ProblemActions::save()
{
    const QString file = FileDialog::getSaveFileName(m_host.dialogParent(), tr("Save Problems"),
                                                     QStringLiteral("csv file(*.csv)"));
    if (file.isEmpty() || !ProjectState::hasData()) // it may be closed while the user is asked
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    Outcome outcome = checkNotOwn(ProjectState::place(), file);
    if (outcome.isDone())
        outcome = writeResultCsv(file, m_model, ResultCsv::AsShown);
    QGuiApplication::restoreOverrideCursor();
    if (outcome.isDone())
        return FileExports::offerToOpen(m_host, file,
                                        tr("Rows: %1").arg(lum::groupedNumber(m_model.rowCount())));
    basalt::logError(outcome.detail());
    LumMessageBox::error(m_host.dialogParent(), tr("Save Problems"), outcome.text());
}
