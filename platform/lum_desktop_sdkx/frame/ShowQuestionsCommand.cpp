#include "lum_desktop_sdkx/frame/ShowQuestionsCommand.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/dialogs/SilencedBoxes.h"
#include "lum_desktop_sdkx/IDesktopHost.h"

#include <QCoreApplication>

void ShowQuestionsCommand::execute()
{
    const int count = SilencedBoxes::clear();
    const QString text =
        count == 0 ? QCoreApplication::translate("ShowQuestionsCommand",
                                                 "All questions and messages are shown already.")
                   : QCoreApplication::translate("ShowQuestionsCommand",
                                                 "Questions and messages that are shown again: %1.")
                         .arg(count);
    LumMessageBox::information(host().dialogParent(),
                               QCoreApplication::translate("ShowQuestionsCommand", "Questions"),
                               text);
}
