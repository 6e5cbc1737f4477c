#include "lum_desktop_sdkx/frame/CoordinateReadout.h"

#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/coords/ShownUnit.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/events/PlatformEvents.h"
#include "lum_sdk/Text.h"

CoordinateReadout::CoordinateReadout(const char* config, IDesktopHost* host)
    : m_parameters(desktop::componentParameters(config)),
      m_subscription(*this, events::kXyChangedText, host->eventManager())
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setContentsMargins(8, 0, 8, 0);
    // Wide enough for any grid coordinate, so that the rest of the status bar does not move.
    setMinimumWidth(fontMetrics().horizontalAdvance(
                        QStringLiteral("N=00000000.000    E=00000000.000    ftUS")) +
                    16);
}

void CoordinateReadout::handleEvent(const char* /*eventName*/, const char* payload,
                                    int /*reserved*/)
{
    const QString position = QString::fromUtf8(payload);
    const QString unit = lum::toQString(lum::symbolOf(lum::shownUnit().shown));
    setText(position.isEmpty() ? QString() : position + QStringLiteral("    ") + unit);
}
