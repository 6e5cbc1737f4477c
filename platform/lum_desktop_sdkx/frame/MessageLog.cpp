#include "lum_desktop_sdkx/frame/MessageLog.h"

#include "lum_sdk/Text.h"

#include <QTime>

namespace {
constexpr std::size_t kMostLines = 2000;
} // namespace

MessageLog& MessageLog::instance()
{
    static MessageLog log;
    return log;
}

MessageLog::MessageLog()
{
    basalt::setLogListener(
        [](void* self, ILogger::Level level, std::string_view text) {
            static_cast<MessageLog*>(self)->add(level, text);
        },
        this);
}

MessageLog::~MessageLog()
{
    basalt::setLogListener(nullptr, nullptr);
}

std::deque<MessageLog::Line> MessageLog::takeLines()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_lines, {});
}

void MessageLog::add(ILogger::Level level, std::string_view text)
{
    if (level == ILogger::Level::Debug)
        return;
    bool first = false;
    {
        const std::lock_guard lock(m_mutex);
        first = m_lines.empty();
        if (m_lines.size() == kMostLines)
            m_lines.pop_front();
        m_lines.push_back({QTime::currentTime().toString(QStringLiteral("hh:mm:ss")), level,
                           lum::toQString(text)});
    }
    if (first) // queued, since any thread may write
        QMetaObject::invokeMethod(this, &MessageLog::linesWaiting, Qt::QueuedConnection);
}
