#include "map/ui/SheetPrinter.h"

#include "map/sheet/MapGround.h"
#include "map/sheet/MapSheet.h"
#include "map/sheet/SheetFile.h"
#include "map/sheet/SheetLayout.h"

#include <QCoreApplication>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MapSheet)
};

} // namespace

void setPaper(QPrinter& printer, const MapSheet& sheet)
{
    const SheetSetup& setup = sheet.setup;
    printer.setDocName(setup.title.isEmpty() ? setup.project : setup.title);
    printer.setPageSize(QPageSize(setup.paper.sizeMm(false), QPageSize::Millimeter,
                                  QLatin1String(setup.paper.name), QPageSize::FuzzyMatch));
    printer.setPageOrientation(setup.isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setFullPage(true); // the sheet has margins of its own
}

Outcome printSheet(QPrinter& printer, const MapSheet& sheet, SheetWatch& watch)
{
    sheet.ground->takeFaults(); // of the preview
    QPainter painter;
    if (!painter.begin(&printer))
        return Outcome::failed(
            Texts::tr("The printer \"%1\" cannot print.").arg(printer.printerName()));
    const double dots = printer.resolution() / sheet.setup.dpi;
    painter.scale(dots, dots);
    const SheetLayout layout(sheet.setup);
    if (!paintSheet(painter, sheet, layout, watch)) {
        printer.abort();
        return watch.isCancelled
                   ? Outcome::refused(Texts::tr("Cancelled; nothing was printed."))
                   : Outcome::failed(Texts::tr("There is not enough memory to print the map."));
    }
    if (!painter.end())
        return Outcome::failed(
            Texts::tr("The printer \"%1\" cannot print.").arg(printer.printerName()));
    const QString missing = sheet.ground->takeFaults().join(QLatin1Char(' '));
    if (!missing.isEmpty())
        return Outcome::failed(
            Texts::tr("The map was printed, but is not complete: %1").arg(missing));
    Outcome outcome =
        Outcome::done(Texts::tr("The map was printed, %1 on %2.")
                          .arg(scaleText(layout.scale), QLatin1String(sheet.setup.paper.name)));
    outcome.add(sheetNotices(sheet, layout));
    return outcome;
}
