#include "app/protocol/ProgressReporter.h"

#include "app/protocol/Events.h"
#include "app/protocol/Payloads.h"
#include "lum_sdk/IEventManager.h"

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
    m_progress.setCaption(caption.toStdString());
    publish(m_progress.at(percent));
}

void ProgressReporter::report(const QString& caption, std::size_t done, std::size_t total)
{
    m_progress.setCaption(caption.toStdString());
    publish(m_progress.at(done, total));
}

void ProgressReporter::reportEach(std::string_view caption, std::size_t total)
{
    m_progress.setCaption(caption);
    for (std::size_t done = 1; done <= total; ++done)
        publish(m_progress.at(done, total));
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
