#include "map/ui/SheetWork.h"

#include "basalt_utilities/ILogger.h"

#include <exception>
#include <string>
#include <utility>

SheetWork::~SheetWork()
{
    stop();
}

void SheetWork::start(Job job)
{
    if (!isBusy()) {
        run(std::move(job));
        return;
    }
    m_next = std::move(job);
    m_watch->isCancelled = true;
}

void SheetWork::cancel()
{
    m_next = nullptr;
    if (isBusy())
        m_watch->isCancelled = true;
}

void SheetWork::stop()
{
    cancel();
    if (m_thread.joinable())
        m_thread.join();
    m_watch.reset();
    ++m_number; // what the job has queued is for nobody any more
}

void SheetWork::run(Job job)
{
    m_watch = std::make_shared<SheetWatch>();
    const int number = ++m_number;
    auto last = std::make_shared<int>(0);
    m_watch->report = [this, number, last](double percent) {
        const int whole = static_cast<int>(percent);
        if (std::exchange(*last, whole) == whole)
            return;
        QMetaObject::invokeMethod(
            this,
            [this, number, whole] {
                if (number == m_number)
                    Q_EMIT progressed(whole);
            },
            Qt::QueuedConnection);
    };
    m_thread = std::thread([this, number, watch = m_watch, job = std::move(job)] {
        try {
            job(*watch);
        } catch (const std::exception& fault) { // no memory
            basalt::logError(std::string("A sheet has failed: ") + fault.what());
        }
        QMetaObject::invokeMethod(
            this,
            [this, number] {
                if (number == m_number)
                    onEnded();
            },
            Qt::QueuedConnection);
    });
}

void SheetWork::onEnded()
{
    m_thread.join();
    m_watch.reset();
    if (Job next = std::exchange(m_next, nullptr))
        run(std::move(next));
    else
        Q_EMIT finished();
}
