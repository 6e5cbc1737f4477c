#include "plots/PlotFiles.h"

#include "lum_sdk/files/WholeFile.h"
#include "plots/StatisticsPlot.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace {

constexpr int kPictureScale = 2; // device pixels to a pixel of a picture
constexpr double kMargin = 10;   // pixels
constexpr double kInchMm = 25.4;

/// A page without its margin.
QRectF inside(const QRectF& page, double scale)
{
    const double margin = kMargin * scale;
    return page.adjusted(margin, margin, -margin, -margin);
}

QSize sizeOf(const StatisticsPlot& plot)
{
    return plot.size().expandedTo({640, 480});
}

void writeSvg(StatisticsPlot& plot, QIODevice& device)
{
    const QSize size = sizeOf(plot);
    QSvgGenerator svg;
    svg.setOutputDevice(&device);
    svg.setResolution(plot.logicalDpiX());
    svg.setSize(size);
    svg.setViewBox(QRect({0, 0}, size));
    svg.setTitle(plot.title());
    QPainter painter(&svg);
    plot.paint(painter, inside(QRect({0, 0}, size), 1));
}

void writePdf(StatisticsPlot& plot, QIODevice& device)
{
    const QSizeF sizeMm = QSizeF(sizeOf(plot)) * kInchMm / plot.logicalDpiX();
    QPdfWriter pdf(&device);
    pdf.setPageSize(QPageSize(sizeMm, QPageSize::Millimeter));
    pdf.setPageMargins({0, 0, 0, 0});
    pdf.setTitle(plot.title());
    QPainter painter(&pdf);
    plot.paint(painter, inside(QRectF(0, 0, pdf.width(), pdf.height()),
                               pdf.logicalDpiX() / double(plot.logicalDpiX())));
}

} // namespace

QImage pictureOf(StatisticsPlot& plot)
{
    QImage image(sizeOf(plot) * kPictureScale, QImage::Format_RGB32);
    const auto dotsPerMetre = [](int dpi) { return int(dpi * kPictureScale * 1000 / kInchMm); };
    image.setDotsPerMeterX(dotsPerMetre(plot.logicalDpiX()));
    image.setDotsPerMeterY(dotsPerMetre(plot.logicalDpiY()));
    image.fill(Qt::white);
    QPainter painter(&image);
    plot.paint(painter, inside(image.rect(), kPictureScale));
    painter.end();
    return image;
}

Outcome savePlot(StatisticsPlot& plot, const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    const QString shown = QDir::toNativeSeparators(path);
    if (!StatisticsPlot::fileEndings().contains(ending))
        return Outcome::refused(
            StatisticsPlot::tr("\"%1\" was not written: a plot is saved as PNG, SVG or PDF.")
                .arg(shown));
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    if (ending == QLatin1String("png"))
        pictureOf(plot).save(&buffer, "PNG");
    else if (ending == QLatin1String("svg"))
        writeSvg(plot, buffer);
    else
        writePdf(plot, buffer);
    const QString fault = lum::writeWholeFile(path, content);
    if (!fault.isEmpty())
        return Outcome::failed(
            StatisticsPlot::tr("\"%1\" could not be written: %2.").arg(shown, fault));
    return Outcome::done();
}
