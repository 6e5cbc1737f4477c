#include "lum_desktop_sdkx/frame/StatusText.h"

#include "lum_sdk/DpiScale.h"

#include <QPainter>

namespace {
constexpr int kMargin = 6;
}

void StatusText::setText(const QString& text)
{
    m_text = text;
    setToolTip(text);
    setAccessibleName(text);
    update();
}

void StatusText::paintEvent(QPaintEvent* /*event*/)
{
    const QRect place = rect().adjusted(dpi_scaled(kMargin), 0, -dpi_scaled(kMargin), 0);
    QPainter(this).drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                            fontMetrics().elidedText(m_text, Qt::ElideRight, place.width()));
}
