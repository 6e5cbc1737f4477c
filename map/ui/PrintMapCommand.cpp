#include "map/ui/PrintMapCommand.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_desktop_sdkx/WaitCursor.h"
#include "lum_sdk/Transform.h"
#include "map/sheet/SheetFile.h"
#include "map/ui/DlgPrintMap.h"
#include "map/ui/ShownMap.h"

#include <QCoreApplication>

void PrintMapCommand::execute()
{
    auto* const map = host().windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
    if (map == nullptr)
        return; // the frame has logged that it is missing
    MapSheet sheet = [this] {
        const WaitCursor waiting;
        return shownMap(host());
    }();
    if (const QString fault = sheetFault(sheet, SheetFormat::Pdf); !fault.isEmpty()) {
        LumMessageBox::information(host().dialogParent(),
                                   QCoreApplication::translate("DlgPrintMap", "Print / Export Map"),
                                   fault);
        return;
    }
    DlgPrintMap(host(), std::move(sheet), map->transform().visibleExtent()).exec();
}
