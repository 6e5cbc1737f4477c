#include "lum_sdk/events/ProgressReporter.h"

#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/events/PlatformEvents.h"

#include <string>

namespace {

double percentOf(std::size_t done, std::size_t total)
{
    return total == 0 ? 100.0 : static_cast<double>(done) * 100.0 / static_cast<double>(total);
}

} // namespace

ProgressReporter::ProgressReporter(IEventManager* manager) : m_manager(manager) {}

ProgressReporter::~ProgressReporter()
{
    finish();
}

void ProgressReporter::start(const QString& caption)
{
    publish(payload::started(caption.toStdString()).c_str());
}

void ProgressReporter::report(const QString& caption, double percent)
{
    publish(payload::progress(caption.toStdString(), percent).c_str());
}

void ProgressReporter::report(const QString& caption, std::size_t done, std::size_t total)
{
    report(caption, percentOf(done, total));
}

void ProgressReporter::busy(const QString& caption)
{
    publish(payload::busy(caption.toStdString()).c_str());
}

void ProgressReporter::finish()
{
    if (m_isShown)
        hide();
}

void ProgressReporter::hide()
{
    publish(payload::kProgressEnd);
    m_isShown = false;
}

void ProgressReporter::publish(const char* text)
{
    m_isShown = true;
    if (m_manager != nullptr)
        m_manager->publish(events::kProgress, text, 0);
}

ProgressSteps::ProgressSteps(ProgressReporter& progress, std::string_view caption,
                             std::size_t total)
    : m_progress(progress), m_text(caption), m_total(total)
{
}

void ProgressSteps::next()
{
    m_progress.publish(m_text.at(percentOf(++m_done, m_total)));
}
