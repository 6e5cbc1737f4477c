#include "project/ui/SaveCopyCommand.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectPlace.h"
#include "project/ui/DlgProjectPlace.h"
#include "project/ui/ProjectSession.h"
#include "project/ui/ProjectState.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

using Button = LumMessageBox::Button;

QString translated(const char* text)
{
    return QCoreApplication::translate("SaveCopyCommand", text);
}

QString title()
{
    return translated(QT_TRANSLATE_NOOP("SaveCopyCommand", "Save a Copy As"));
}

bool isYes(IDesktopHost& host, const QString& text, const QString& details = {})
{
    return LumMessageBox::question(host.dialogParent(), title(), text,
                                   LumMessageBox::Buttons(Button::Yes) | Button::No,
                                   details) == Button::Yes;
}

void reportFailure(IDesktopHost& host, const QString& text, const QString& reason)
{
    LumMessageBox::error(host.dialogParent(), title(), text, reason);
}

/// Asks before files are put beside others.
bool mayUse(IDesktopHost& host, const QString& folder)
{
    return !QDir(folder).exists() || QDir(folder).isEmpty() ||
           isYes(host,
                 translated(QT_TRANSLATE_NOOP("SaveCopyCommand",
                                              "The folder \"%1\" exists already. Save the copy "
                                              "there?"))
                     .arg(QDir::toNativeSeparators(folder)),
                 translated(QT_TRANSLATE_NOOP("SaveCopyCommand",
                                              "Its files stay; those of the same names get the "
                                              "present time behind their names.")));
}

} // namespace

void SaveCopyCommand::execute()
{
    if (!ProjectState::isOpen())
        return;
    const ProjectPlace open = ProjectState::place();
    DlgProjectPlace dialog(
        host().dialogParent(), title(),
        translated(QT_TRANSLATE_NOOP("SaveCopyCommand", "The copy will be in \"%1\".")));
    dialog.setName(open.name);
    dialog.keepApartFrom(open);
    while (dialog.exec() == QDialog::Accepted) { // again after a No or a failure
        const ProjectPlace copy = dialog.place();
        if (!mayUse(host(), copy.folder) || !save(copy))
            continue;
        if (wantsToGoOn(open, copy))
            goOn(copy);
        return;
    }
}

bool SaveCopyCommand::save(const ProjectPlace& copy) const
{
    const bool isNew = !QDir(copy.folder).exists();
    Outcome saving =
        QDir().mkpath(copy.folder)
            ? DataProcessDataManager::instance().saveCopy(copy)
            : Outcome::failed(translated(QT_TRANSLATE_NOOP("SaveCopyCommand",
                                                           "The folder \"%1\" cannot be made."))
                                  .arg(QDir::toNativeSeparators(copy.folder)));
    if (saving.isDone())
        return true;
    if (isNew)
        QDir().rmdir(copy.folder); // only succeeds when it is empty
    reportFailure(host(),
                  translated(QT_TRANSLATE_NOOP("SaveCopyCommand", "The copy cannot be saved.")),
                  saving.text());
    return false;
}

/// Tells that the copy is there. Asks only when the open project cannot be saved where it is.
bool SaveCopyCommand::wantsToGoOn(const ProjectPlace& open, const ProjectPlace& copy) const
{
    const QString folder = QDir::toNativeSeparators(open.folder);
    const QString saved = translated(QT_TRANSLATE_NOOP("SaveCopyCommand", "The copy is in \"%1\"."))
                              .arg(QDir::toNativeSeparators(copy.folder));
    const auto& manager = DataProcessDataManager::instance();
    QString trouble;
    if (!QFileInfo(open.folder).isDir())
        trouble = translated(QT_TRANSLATE_NOOP("SaveCopyCommand",
                                               "The folder of the open project, \"%1\", is gone."));
    else if (manager.isSaveOwed() || manager.isReadOnly())
        trouble = translated(QT_TRANSLATE_NOOP(
            "SaveCopyCommand", "The open project cannot be saved in its own folder, \"%1\"."));
    if (!trouble.isEmpty())
        return LumMessageBox::ask(host().dialogParent(),
                                  {.title = title(),
                                   .text = saved + QLatin1Char(' ') +
                                           translated(QT_TRANSLATE_NOOP("SaveCopyCommand",
                                                                        "Go on with the copy?")),
                                   .buttons = LumMessageBox::Buttons(Button::Yes) | Button::No,
                                   .details = trouble.arg(folder),
                                   .defaultButton = Button::Yes}) == Button::Yes; // loses nothing
    LumMessageBox::information(
        host().dialogParent(), title(), saved, Button::Ok,
        translated(QT_TRANSLATE_NOOP("SaveCopyCommand", "The open project stays in \"%1\"."))
            .arg(folder));
    return false;
}

void SaveCopyCommand::goOn(const ProjectPlace& copy) const
{
    const Outcome opening = ProjectSession::open(host(), copy);
    if (opening.isDone())
        return;
    ProjectSession::forget(host()); // the copy holds everything
    reportFailure(host(),
                  translated(QT_TRANSLATE_NOOP("SaveCopyCommand", "The copy cannot be opened.")),
                  opening.text());
}
