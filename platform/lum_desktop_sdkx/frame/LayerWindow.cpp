#include "lum_desktop_sdkx/frame/LayerWindow.h"

#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/frame/LayoutText.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/ILayerViewer.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/events/PlatformEvents.h"

#include <QSignalBlocker>

LayerWindow::LayerWindow(const char* config, IDesktopHost* host)
    : m_host(*host), m_parameters(desktop::componentParameters(config)),
      m_subscription(*this, events::kSettingViewFinished, host->eventManager())
{
    setFrameStyle(QFrame::NoFrame);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::StrongFocus);
    setSpacing(2);
    connect(this, &QListWidget::itemChanged, this, &LayerWindow::applyCheck);
}

void LayerWindow::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    // Not at once: the assistant may add more layers after this event.
    QMetaObject::invokeMethod(this, &LayerWindow::rebuild, Qt::QueuedConnection);
}

void LayerWindow::showEvent(QShowEvent* event)
{
    QListWidget::showEvent(event);
    rebuild();
}

void LayerWindow::rebuild()
{
    const QSignalBlocker quiet(this);
    clear();
    IMapWindow* const window = map();
    if (window == nullptr)
        return;
    for (std::size_t i = window->layers().count(); i-- > 0;) {
        ILayerViewer& layer = *window->layers().at(i);
        if (layer.GetProperties().integer("listed", 1) == 0)
            continue; // another command shows and hides it
        const QString name = QString::fromStdString(layer.GetName());
        const std::string caption(layer.GetProperties().text("caption", layer.GetName()));
        auto* const item =
            new QListWidgetItem(desktop::layoutText(QString::fromStdString(caption)), this);
        item->setData(Qt::UserRole, name);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setCheckState(layer.IsVisible() ? Qt::Checked : Qt::Unchecked);
    }
}

void LayerWindow::applyCheck(QListWidgetItem* item)
{
    IMapWindow* const window = map();
    ILayerViewer* const layer =
        window != nullptr ? window->layers().find(item->data(Qt::UserRole).toString()) : nullptr;
    if (layer == nullptr)
        return;
    layer->GetProperties().set("visible", item->checkState() == Qt::Checked ? "1" : "0");
    window->redraw();
}

IMapWindow* LayerWindow::map() const
{
    return m_host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
}
