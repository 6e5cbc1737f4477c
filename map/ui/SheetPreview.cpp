#include "map/ui/SheetPreview.h"

#include "lum_sdk/DpiScale.h"
#include "map/sheet/SheetLayout.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int kMargin = 10; // logical pixels around the paper
constexpr int kShadow = 3;
constexpr double kInchMm = 25.4;

/// \param width of the page, device pixels
/// \returns null when it was cancelled
QImage pageOf(const MapSheet& sheet, int width, SheetWatch& watch)
{
    const SheetLayout layout(sheet.setup);
    QImage page(layout.page, QImage::Format_RGB32);
    page.fill(Qt::white);
    {
        QPainter painter(&page);
        if (!paintSheet(painter, sheet, layout, watch))
            return {};
    }
    return page.width() > width ? page.scaledToWidth(width, Qt::SmoothTransformation) : page;
}

} // namespace

SheetPreview::SheetPreview(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(dpi_scaled(280), dpi_scaled(280));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(&m_work, &SheetWork::finished, this, [this] { update(); });
}

QSize SheetPreview::sizeHint() const
{
    return {dpi_scaled(520), dpi_scaled(460)};
}

void SheetPreview::setSheet(const MapSheet& sheet)
{
    m_sheet = sheet;
    request();
    update();
}

void SheetPreview::stop()
{
    m_work.stop();
    m_sheet.ground.reset(); // `request` needs one
}

QRectF SheetPreview::paperPlace() const
{
    const double margin = dpi_scaled(kMargin);
    const QSizeF room = QSizeF(size()) - QSizeF(2 * margin, 2 * margin);
    const QSizeF paper =
        m_sheet.setup.paper.sizeMm(m_sheet.setup.isLandscape).scaled(room, Qt::KeepAspectRatio);
    QRectF place(QPointF(0, 0), paper);
    place.moveCenter(QRectF(rect()).center());
    return place;
}

void SheetPreview::request()
{
    const QRectF place = paperPlace();
    if (m_sheet.ground == nullptr || place.width() < 1)
        return;
    MapSheet sheet = m_sheet;
    const double width = place.width() * devicePixelRatioF();
    const double paperMm = sheet.setup.paper.sizeMm(sheet.setup.isLandscape).width();
    sheet.setup.dpi = std::max(kLeastDpi, width / paperMm * kInchMm);
    m_work.start([this, sheet, width](SheetWatch& watch) {
        const QImage page = pageOf(sheet, static_cast<int>(width), watch);
        if (!page.isNull())
            QMetaObject::invokeMethod(
                this, [this, page] { m_picture = page; }, Qt::QueuedConnection);
    });
}

void SheetPreview::resizeEvent(QResizeEvent* /*event*/)
{
    request();
}

void SheetPreview::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF paper = paperPlace();
    painter.fillRect(paper.translated(kShadow, kShadow), QColor(0, 0, 0, 90));
    painter.fillRect(paper, Qt::white);
    if (!m_picture.isNull())
        painter.drawImage(
            QRectF(paper.topLeft(),
                   QSizeF(m_picture.size()).scaled(paper.size(), Qt::KeepAspectRatio)),
            m_picture);
    painter.setPen(QColor(0x80, 0x80, 0x80));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(paper);
}
