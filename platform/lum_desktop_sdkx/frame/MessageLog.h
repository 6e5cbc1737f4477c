#pragma once

#include "basalt_utilities/ILogger.h"

#include <QObject>
#include <QString>

#include <deque>
#include <mutex>

/// Keeps the last lines of the log for the message window, from the start of the program on.
class MessageLog final : public QObject
{
    Q_OBJECT

public:
    struct Line
    {
        QString time; ///< of the day, "hh:mm:ss"
        ILogger::Level level;
        QString text;
    };

    /// The object of the process. It listens to the log from the first call on.
    [[nodiscard]] static MessageLog& instance();

    ~MessageLog() override;

    /// The lines since the last call without debug lines, the last 2000 at most.
    [[nodiscard]] std::deque<Line> takeLines();

Q_SIGNALS:
    /// Sent on the thread of this object, and only once for lines that come close together.
    void linesWaiting();

private:
    MessageLog();
    void add(ILogger::Level level, std::string_view text);

    std::mutex m_mutex;
    std::deque<Line> m_lines;
};
