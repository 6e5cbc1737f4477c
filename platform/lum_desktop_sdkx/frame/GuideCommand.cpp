#include "lum_desktop_sdkx/frame/GuideCommand.h"

#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/frame/GuideWindow.h"
#include "lum_desktop_sdkx/frame/LayoutText.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

void GuideCommand::execute()
{
    const QString title = QCoreApplication::translate("GuideCommand", "User Guide");
    const QDir folder(QString::fromStdString(basalt::configFolder()));
    const QString file = lum::toQString(parameters().text("file"));
    QString path = folder.filePath(desktop::layoutText(file));
    if (!QFileInfo::exists(path))
        path = folder.filePath(file);
    QWidget* const frame = host().dialogParent();
    if (!QFileInfo::exists(path)) {
        basalt::logError("There is no guide \"" + path.toStdString() + "\"");
        LumMessageBox::error(
            frame, title,
            QCoreApplication::translate("GuideCommand", "The guide \"%1\" is not installed.")
                .arg(QDir::toNativeSeparators(path)));
        return;
    }
    auto* guide = frame->findChild<GuideWindow*>(); // one is enough
    if (guide == nullptr)
        guide = new GuideWindow(frame, title, path);
    guide->show();
    guide->raise();
    guide->activateWindow();
}
