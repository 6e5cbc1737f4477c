#include "app/ProgressStatusBarForSkyquill.h"

#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/Text.h"
#include "protocol/Events.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

#include <algorithm>
#include <cstring>

namespace {
constexpr int kFrameMs = 33;
// The rest of the status bar needs its place.
constexpr int kWidestLabel = 420; // pixels
constexpr int kLabelShare = 3;    // of the window's width, at most the third part
} // namespace

ProgressStatusBarForSkyquill::ProgressStatusBarForSkyquill(const char* config, IDesktopHost* host)
    : m_parameters(desktop::componentParameters(config)),
      m_subscription(*this, events::kProgress, host->eventManager()), m_bar(new QProgressBar(this)),
      m_label(new QLabel(this))
{
    m_label->setTextFormat(Qt::PlainText);
    m_label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_label->setMinimumWidth(1); // it must not push a small window wider
    m_bar->setFixedSize(200, 15);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(10, 0, 10, 0);
    row->addWidget(m_label, 0);
    row->addWidget(m_bar, 1);
    hide();
}

void ProgressStatusBarForSkyquill::handleEvent(const char* eventName, const char* payload,
                                               int /*reserved*/)
{
    if (std::strcmp(eventName, events::kProgress) != 0)
        return;
    if (payload == nullptr)
        payload = "";
    if (!canWait(payload)) {
        showPayload(payload);
        return;
    }
    m_waiting.assign(payload);
    m_isWaiting = true;
    if (!m_waitTimer.isActive())
        m_waitTimer.start(kFrameMs, this);
}

void ProgressStatusBarForSkyquill::timerEvent(QTimerEvent* /*event*/)
{
    m_waitTimer.stop();
    if (m_isWaiting)
        showPayload(m_waiting.c_str());
}

bool ProgressStatusBarForSkyquill::canWait(const char* payload) const
{
    return m_sinceShown.isValid() && !m_sinceShown.hasExpired(kFrameMs) &&
           std::strstr(payload, "show=") == nullptr; // showing and hiding never wait
}

void ProgressStatusBarForSkyquill::showPayload(const char* payload)
{
    m_isWaiting = false;
    payload::read(payload, m_values);
    const std::string_view text = m_values.text("text");
    m_label->setText(
        m_label->fontMetrics().elidedText(lum::toQString(text), Qt::ElideMiddle,
                                          std::min(kWidestLabel, window()->width() / kLabelShare)));
    if (m_values.integer("scroll", 0) != 0) {
        m_bar->setMaximum(0);
    } else {
        m_bar->setMaximum(100);
        m_bar->setValue(m_values.integer("value", -1));
    }
    const bool shows = m_values.integer("show", 1) != 0;
    if (shows != !isHidden())
        setVisible(shows);
    if (shows)
        paintNow();
    m_sinceShown.start();
}

void ProgressStatusBarForSkyquill::paintNow()
{
    if (!isVisible())
        return;
    // A bar that has just appeared, or whose text has grown, must be laid out before it is painted.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    if (QWidget* const statusBar = parentWidget())
        statusBar->repaint();
}
