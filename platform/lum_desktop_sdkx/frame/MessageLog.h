#pragma once

#include "basalt_utilities/ILogger.h"

#include <QObject>
#include <QString>

#include <deque>
#include <mutex>

/// The last lines of the log, from the start of the program, for the message window.
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

    /// The one log of the process; it listens from the first call on.
    [[nodiscard]] static MessageLog& instance();

    ~MessageLog() override;

    /// Lines that have come since the last call, debug lines left out; 2000 are kept at most.
    [[nodiscard]] std::deque<Line> takeLines();

Q_SIGNALS:
    /// On the thread of this object; once for many lines that come together.
    void linesWaiting();

private:
    MessageLog();
    void add(ILogger::Level level, std::string_view text);

    std::mutex m_mutex;
    std::deque<Line> m_lines;
};
