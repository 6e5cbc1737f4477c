#include "reports/ui/ReportProgress.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/events/PlatformEvents.h"

#include <QCoreApplication>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int kFrameMs = 33;
constexpr int kShownAfterMs = 300; // what is done sooner needs no dialog
constexpr int kWhole = 100;

QString translated(const char* text)
{
    return QCoreApplication::translate("ReportProgress", text);
}

} // namespace

ReportProgress::ReportProgress(IDesktopHost& host, int reports)
    : m_dialog(host.dialogParent()), m_reports(reports),
      m_subscription(*this, events::kProgress, host.eventManager())
{
    m_dialog.setWindowTitle(translated(QT_TRANSLATE_NOOP("ReportProgress", "Export Report")));
    m_dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_dialog.setWindowModality(Qt::ApplicationModal);
    // Not a button of our own: the dialog would keep the Escape key of its own one as well, and two
    // of them cancel nothing.
    m_dialog.setCancelButtonText(translated(QT_TRANSLATE_NOOP("ReportProgress", "&Cancel")));
    if (auto* const cancel = m_dialog.findChild<QPushButton*>())
        cancel->setAutoDefault(false); // an Enter held down from the question does not cancel
    m_dialog.setRange(0, reports * kWhole);
    m_dialog.setMinimumDuration(kShownAfterMs);
    m_dialog.setMinimumWidth(dpi_scaled(420));
    m_dialog.setAutoClose(false);
    m_dialog.setAutoReset(false);
    m_dialog.setValue(0);
    m_sinceShown.start();
}

void ReportProgress::begin(const QString& caption)
{
    ++m_current;
    m_percent = 0;
    m_dialog.setLabelText(
        translated(QT_TRANSLATE_NOOP("ReportProgress", "Report %1 of %2: %3"))
            .arg(QString::number(m_current), QString::number(m_reports), caption));
    takeEvents();
}

bool ReportProgress::isCancelled()
{
    if (m_sinceShown.hasExpired(kFrameMs))
        takeEvents();
    return m_dialog.wasCanceled();
}

void ReportProgress::takeEvents()
{
    if (m_dialog.wasCanceled())
        return; // it is hidden, and holds no events back any more
    m_dialog.setValue((m_current - 1) * kWhole + m_percent);
    if (m_dialog.isVisible())
        QCoreApplication::processEvents();
    m_sinceShown.start();
}

void ReportProgress::handleEvent(const char* /*eventName*/, const char* payload, int /*reserved*/)
{
    basalt::Dictionary values;
    payload::read(payload, values);
    m_percent = std::clamp(static_cast<int>(values.number("value", m_percent)), 0, kWhole);
}
