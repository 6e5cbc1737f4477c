#include "lum_desktop_sdkx/dialogs/Dialog.h"

#include "lum_sdk/DpiScale.h"

#include <QHash>
#include <QHideEvent>
#include <QVBoxLayout>

namespace {

constexpr int kMargin = 12;
constexpr int kSpacing = 10;

QHash<QString, QSize>& rememberedSizes()
{
    static QHash<QString, QSize> sizes;
    return sizes;
}

} // namespace

Dialog::Dialog(QWidget* parent) : QDialog(parent)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void Dialog::setMinimumSizeScaled(int width, int height)
{
    setMinimumSize(dpi_scaled(width), dpi_scaled(height));
}

void Dialog::setFixedSizeScaled(int width, int height)
{
    setFixedSize(dpi_scaled(width), dpi_scaled(height));
}

QVBoxLayout* Dialog::makeMainLayout()
{
    auto* const layout = new QVBoxLayout(this);
    const int margin = dpi_scaled(kMargin);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(dpi_scaled(kSpacing));
    return layout;
}

void Dialog::rememberSize(const QString& key)
{
    m_sizeKey = key;
    const QSize size = rememberedSizes().value(key);
    if (size.isValid())
        resize(size);
}

void Dialog::hideEvent(QHideEvent* event)
{
    if (!m_sizeKey.isEmpty() && !event->spontaneous()) // false for a window that was minimised
        rememberedSizes().insert(m_sizeKey, size());
    QDialog::hideEvent(event);
}
