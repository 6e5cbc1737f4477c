#include "map/sheet/SheetFile.h"

#include "lum_sdk/files/WholeFile.h"
#include "map/sheet/MapGround.h"
#include "map/sheet/MapSheet.h"
#include "map/sheet/SheetGeoTiff.h"
#include "map/sheet/SheetLayout.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <array>
#include <cmath>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MapSheet)
};

struct Ending
{
    const char* suffix;
    SheetFormat format;
};

constexpr std::array kEndings = {
    Ending{"pdf", SheetFormat::Pdf},
    Ending{"png", SheetFormat::Png},
    Ending{"tif", SheetFormat::GeoTiff},
    Ending{"tiff", SheetFormat::GeoTiff},
};

constexpr double kMostPictureDots = 250e6; // a picture is made in memory, 4 bytes a dot

/// How far the writing came: a fault, or neither done nor a fault when it was cancelled.
struct Written
{
    QString fault;
    QString notice;
    bool isDone = false;
};

Written toFile(const QString& path, const QByteArray& content)
{
    const QString fault = lum::writeWholeFile(path, content);
    return {fault, {}, fault.isEmpty()};
}

Written stopped(const SheetWatch& watch)
{
    return {watch.isCancelled ? QString() : Texts::tr("there is not enough memory"), {}, false};
}

Written writePdf(const MapSheet& sheet, const SheetLayout& layout, const QString& path,
                 SheetWatch& watch)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        const SheetSetup& setup = sheet.setup;
        const QSizeF paper = setup.paper.sizeMm(false);
        QPdfWriter writer(&buffer);
        writer.setTitle(setup.title.isEmpty() ? setup.project : setup.title);
        writer.setCreator(QCoreApplication::applicationName());
        writer.setResolution(static_cast<int>(std::lround(setup.dpi)));
        writer.setPageLayout(QPageLayout(
            QPageSize(paper, QPageSize::Millimeter, QLatin1String(setup.paper.name),
                      QPageSize::FuzzyMatch),
            setup.isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
        QPainter painter(&writer);
        const double dots = writer.resolution() / setup.dpi; // a PDF has whole dots to an inch
        painter.scale(dots, dots);
        if (!paintSheet(painter, sheet, layout, watch))
            return stopped(watch);
    }
    return toFile(path, buffer.data());
}

Written writePng(const MapSheet& sheet, const SheetLayout& layout, const QString& path,
                 SheetWatch& watch)
{
    QImage page(layout.page, QImage::Format_RGB32);
    if (page.isNull())
        return stopped(watch);
    page.fill(Qt::white);
    {
        QPainter painter(&page);
        if (!paintSheet(painter, sheet, layout, watch))
            return stopped(watch);
    }
    constexpr double kInchesAMetre = 1 / 0.0254;
    page.setDotsPerMeterX(static_cast<int>(std::lround(sheet.setup.dpi * kInchesAMetre)));
    page.setDotsPerMeterY(page.dotsPerMeterX());
    QBuffer encoded;
    QImageWriter writer(&encoded, "png");
    if (!writer.write(page))
        return {writer.errorString(), {}, false};
    return toFile(path, encoded.data());
}

Written write(const MapSheet& sheet, SheetFormat format, const SheetLayout& layout,
              const QString& path, SheetWatch& watch)
{
    if (format == SheetFormat::Pdf)
        return writePdf(sheet, layout, path, watch);
    if (format == SheetFormat::Png)
        return writePng(sheet, layout, path, watch);
    GeoTiffResult result = writeGeoTiff(sheet, layout, path, watch);
    return {result.fault, result.notice, result.isDone};
}

} // namespace

const SheetFormat* sheetFormatOf(const QString& file)
{
    const QString suffix = QFileInfo(file).suffix();
    for (const Ending& ending : kEndings) {
        if (suffix.compare(QLatin1String(ending.suffix), Qt::CaseInsensitive) == 0)
            return &ending.format;
    }
    return nullptr;
}

QString sheetFault(const MapSheet& sheet, SheetFormat format)
{
    const SheetSetup& setup = sheet.setup;
    if (setup.area.isNull())
        return sheet.drawing.isSurvey
                   ? Texts::tr("There is nothing to print: the project has no survey results.")
                   : Texts::tr("There is nothing to print: the project has no design points.");
    const QSizeF paper = setup.paper.sizeMm(false) / 25.4;
    const double dots = paper.width() * paper.height() * setup.dpi * setup.dpi;
    if (format != SheetFormat::Png || dots <= kMostPictureDots)
        return {};
    const double most = std::floor(std::sqrt(kMostPictureDots / paper.width() / paper.height()));
    return Texts::tr("A picture of %1 can have up to %2 dots to an inch.")
        .arg(QLatin1String(setup.paper.name), QString::number(most));
}

QString partNotice(const SheetLayout& layout)
{
    return layout.isWhole ? QString()
                          : Texts::tr("At this scale the paper shows a part of the area only.");
}

QString sheetNotices(const MapSheet& sheet, const SheetLayout& layout)
{
    QStringList notices{partNotice(layout)};
    notices.removeAll(QString());
    notices << sheet.ground->overlaysBeside(layout.visibleExtent());
    return notices.join(QLatin1Char('\n'));
}

Outcome writeSheet(const MapSheet& sheet, const QString& file, SheetWatch& watch)
{
    const SheetFormat* const format = sheetFormatOf(file);
    if (format == nullptr)
        return Outcome::refused(
            Texts::tr("\"%1\" ends neither with .pdf nor with .png or .tif.").arg(file));
    if (const QString fault = sheetFault(sheet, *format); !fault.isEmpty())
        return Outcome::refused(fault);
    sheet.ground->takeFaults(); // of an earlier picture
    const SheetLayout layout(sheet.setup);
    const Written written = write(sheet, *format, layout, file, watch);
    const QString missing = sheet.ground->takeFaults().join(QLatin1Char(' '));
    if (written.isDone && !missing.isEmpty())
        return Outcome::failed(Texts::tr("\"%1\" is written, but not complete: %2")
                                   .arg(QDir::toNativeSeparators(file), missing));
    if (written.isDone) {
        const QString paper = QLatin1String(sheet.setup.paper.name);
        Outcome outcome =
            Outcome::done(Texts::tr("\"%1\": %2 on %3.")
                              .arg(QDir::toNativeSeparators(file), scaleText(layout.scale), paper));
        outcome.add(written.notice);
        outcome.add(sheetNotices(sheet, layout));
        return outcome;
    }
    if (written.fault.isEmpty())
        return Outcome::refused(Texts::tr("Cancelled; no file was written."));
    return Outcome::failed(
        Texts::tr("Cannot write \"%1\": %2").arg(QDir::toNativeSeparators(file), written.fault));
}
